#include "device/usb_service_steps.h"

#include <ostream>

namespace velmora::usb {

namespace {

// The name buffer holds 128 bytes with its terminating zero.
constexpr std::size_t maxNameBytes = 127;

bool isContinuationByte(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

} // namespace

void printLine(std::ostream& out, std::string_view line) {
    out << line << std::endl;
}

std::uint64_t registryEntryIdOrZero(UsbService& service, std::ostream& out) {
    if (const auto id = service.registryEntryId()) {
        return *id;
    }
    printLine(out, "Error getting device id");
    return 0;
}

std::string registryNameOrEmpty(UsbService& service, std::ostream& out) {
    auto name = service.registryName();
    if (!name) {
        printLine(out, "Error getting device name");
        return {};
    }
    if (name->size() > maxNameBytes) {
        std::size_t cut = maxNameBytes;
        while (cut > 0 && isContinuationByte((*name)[cut])) {
            --cut;
        }
        name->resize(cut);
    }
    return std::move(*name);
}

std::optional<ReachedDevice> reachDevice(UsbService& service, std::ostream& out,
                                         bool tellFailures) {
    auto plugIn = service.createPlugInInterface();
    service.release();
    if (plugIn.code != 0 || !plugIn.interface) {
        if (plugIn.code == 0 || tellFailures) {
            printLine(out, "Unable to get Plug-In Interface");
        }
        return std::nullopt;
    }
    auto device = plugIn.interface->queryDeviceInterface();
    if (device.code != 0 || !device.interface) {
        if (device.code == 0 || tellFailures) {
            printLine(out, "Unable to get Device Interface");
        }
        return std::nullopt;
    }
    return ReachedDevice{std::move(plugIn.interface), std::move(device.interface)};
}

void printOpenError(std::ostream& out, int code) {
    printLine(out, "Could not open device (error: " + std::to_string(code) + ")");
}

bool releaseRemoved(UsbService& service, std::ostream& out) {
    const int code = service.release();
    if (code != 0) {
        printLine(out, "Couldn’t release raw device object (error: " + std::to_string(code) + ")");
        return false;
    }
    return true;
}

} // namespace velmora::usb
