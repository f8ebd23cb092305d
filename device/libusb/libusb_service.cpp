#include "device/libusb/libusb_service.h"

#include "device/usb_location.h"

#include <array>
#include <cassert>
#include <optional>
#include <span>
#include <utility>

namespace velmora {

LibusbDeviceReference::LibusbDeviceReference(LibusbContext context, libusb_device* adopted)
    : context_(std::move(context)), device_(adopted) {}

LibusbDeviceReference::LibusbDeviceReference(const LibusbDeviceReference& other)
    : context_(other.context_), device_(libusb_ref_device(other.device_)) {}

LibusbDeviceReference::LibusbDeviceReference(LibusbDeviceReference&& other) noexcept
    : context_(std::move(other.context_)), device_(std::exchange(other.device_, nullptr)) {}

LibusbDeviceReference::~LibusbDeviceReference() {
    if (device_ != nullptr) {
        libusb_unref_device(device_);
    }
}

namespace {

// The opened device. It closes when its last holder lets go.
class LibusbDeviceInterface final : public UsbDeviceInterface {
public:
    LibusbDeviceInterface(LibusbDeviceReference device, const libusb_device_descriptor& descriptor)
        : device_(std::move(device)), descriptor_(descriptor) {}
    LibusbDeviceInterface(const LibusbDeviceInterface&) = delete;
    LibusbDeviceInterface& operator=(const LibusbDeviceInterface&) = delete;
    ~LibusbDeviceInterface() override {
        if (handle_ != nullptr) {
            libusb_close(handle_);
        }
    }

    UsbOpenResult open() override {
        if (handle_ != nullptr) {
            return {};
        }
        const int code = libusb_open(device_.get(), &handle_);
        return {code, code == LIBUSB_ERROR_BUSY};
    }
    std::optional<std::uint16_t> vendorId() override { return descriptor_.idVendor; }
    std::optional<std::uint16_t> productId() override { return descriptor_.idProduct; }

private:
    LibusbDeviceReference device_;
    libusb_device_descriptor descriptor_;
    libusb_device_handle* handle_ = nullptr;
};

// libusb has no plug-in layer: the watcher's hold on the device is a reference of its own, and
// the device interface is reached by reading the device descriptor.
class LibusbPlugInInterface final : public UsbPlugInInterface {
public:
    explicit LibusbPlugInInterface(LibusbDeviceReference device) : device_(std::move(device)) {}

    UsbInterfaceResult<UsbDeviceInterface> queryDeviceInterface() override {
        libusb_device_descriptor descriptor{};
        if (const int code = libusb_get_device_descriptor(device_.get(), &descriptor); code != 0) {
            return {code, nullptr};
        }
        return {0, std::make_shared<LibusbDeviceInterface>(device_, descriptor)};
    }

private:
    LibusbDeviceReference device_;
};

class LibusbService final : public UsbService {
public:
    explicit LibusbService(LibusbDeviceReference device) : device_(std::move(device)) {}

    std::optional<std::uint64_t> registryEntryId() override {
        // USB allows seven hub tiers below the root.
        std::array<std::uint8_t, 7> ports{};
        const int depth =
            libusb_get_port_numbers(device(), ports.data(), static_cast<int>(ports.size()));
        if (depth < 0) {
            return std::nullopt;
        }
        return usbLocationId(libusb_get_bus_number(device()),
                             std::span(ports).first(static_cast<std::size_t>(depth)));
    }

    // The product string is read from the device itself, which takes opening it for a moment.
    std::optional<std::string> registryName() override {
        libusb_device_descriptor descriptor{};
        if (libusb_get_device_descriptor(device(), &descriptor) != 0) {
            return std::nullopt;
        }
        if (descriptor.iProduct == 0) {
            return std::string();
        }
        libusb_device_handle* handle = nullptr;
        if (libusb_open(device(), &handle) != 0) {
            return std::nullopt;
        }
        std::array<unsigned char, 128> name{};
        const int length = libusb_get_string_descriptor_ascii(handle, descriptor.iProduct,
                                                              name.data(), name.size());
        libusb_close(handle);
        if (length < 0) {
            return std::nullopt;
        }
        return std::string(reinterpret_cast<const char*>(name.data()),
                           static_cast<std::size_t>(length));
    }

    UsbInterfaceResult<UsbPlugInInterface> createPlugInInterface() override {
        return {0, std::make_shared<LibusbPlugInInterface>(reference())};
    }

    int release() override {
        device_.reset();
        return 0;
    }

private:
    const LibusbDeviceReference& reference() const {
        assert(device_ && "the service was used after its release");
        return *device_;
    }
    libusb_device* device() const { return reference().get(); }

    std::optional<LibusbDeviceReference> device_;
};

} // namespace

std::unique_ptr<UsbService> makeLibusbService(LibusbDeviceReference device) {
    return std::make_unique<LibusbService>(std::move(device));
}

} // namespace velmora
