# The Debian package: built with `./run package` (cpack in the release build folder).
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME velmora)
set(CPACK_PACKAGE_VENDOR "Velmora")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
    "Companion of the Velmora gemstone refractometer: live R.I. and gem identification")
set(CPACK_PACKAGE_DESCRIPTION
    "Shows the refractive index the Velmora hand-held refractometer measures, live, and
identifies gemstones against a reference table of over 300 gem materials by refractive
index, specific gravity, hardness, colour and name. Includes velmora-cli, the same
identification and live reading on the command line.")
set(CPACK_PACKAGE_CONTACT "Velmora Technical Support <${VELMORA_SUPPORT_EMAIL}>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${VELMORA_WEBSITE_URL})
# Dependencies come from the libraries the binaries link, as dpkg-shlibdeps finds them.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA
    ${CMAKE_SOURCE_DIR}/resources/linux/debian/postinst
    ${CMAKE_SOURCE_DIR}/resources/linux/debian/postrm)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION TRUE)

include(CPack)
