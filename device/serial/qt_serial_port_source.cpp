#include "device/serial/qt_serial_port_source.h"

#include <QSerialPortInfo>

namespace velmora {

namespace {

// Qt gives an empty text for a property the port lacks.
std::optional<std::string> textProperty(const QString& text) {
    if (text.isEmpty()) {
        return std::nullopt;
    }
    return text.toStdString();
}

} // namespace

std::vector<SerialDevice> QtSerialPortSource::availablePorts() {
    std::vector<SerialDevice> ports;
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts()) {
        SerialDevice port;
        port.path = info.systemLocation().toStdString();
        port.name = textProperty(info.description());
        port.vendorName = textProperty(info.manufacturer());
        port.serialNumber = textProperty(info.serialNumber());
        if (info.hasVendorIdentifier()) {
            port.vendorId = info.vendorIdentifier();
        }
        if (info.hasProductIdentifier()) {
            port.productId = info.productIdentifier();
        }
        ports.push_back(std::move(port));
    }
    return ports;
}

} // namespace velmora
