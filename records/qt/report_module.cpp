#include "records/qt/report_module.h"

#include "records/qt/report_painter.h"

#include <QGuiApplication>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <memory>
#include <type_traits>
#include <vector>

namespace {

std::vector<velmora::ReportPage> pagesOf(const velmora::StoneRecord* records, std::size_t count,
                                         const std::string& decimalSeparator) {
    std::vector<velmora::ReportPage> pages;
    for (std::size_t i = 0; i < count; ++i) {
        pages.push_back(velmora::reportPage(records[i], decimalSeparator));
    }
    return pages;
}

void a4(QPagedPaintDevice& device) {
    device.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                     QMarginsF(48, 48, 48, 40), QPageLayout::Point));
}

// Text needs a GUI application object; the command line has none and may have no display.
std::unique_ptr<QGuiApplication> applicationForPainting() {
    if (QCoreApplication::instance()) {
        return nullptr;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    static int argc = 1;
    static char name[] = "velmora-cli";
    static char* argv[] = {name, nullptr};
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace

extern "C" __attribute__((visibility("default"))) bool
velmora_writeReportPdf(const velmora::StoneRecord* records, std::size_t count,
                       const std::filesystem::path& file, const std::string& decimalSeparator,
                       std::string& error) {
    const auto application = applicationForPainting();
    const auto pages = pagesOf(records, count, decimalSeparator);
    {
        QPdfWriter writer(QString::fromStdU16String(file.u16string()));
        writer.setResolution(300);
        writer.setCreator("Velmora");
        writer.setTitle(pages.size() == 1 ? QString::fromStdString(pages[0].label)
                                          : QStringLiteral("Gemstone examination reports"));
        a4(writer);
        if (velmora::qt::paintReport(writer, pages)) {
            return true;
        }
    }
    error = "cannot write " + file.string();
    return false;
}

extern "C" __attribute__((visibility("default"))) bool
velmora_printReport(const velmora::StoneRecord* records, std::size_t count,
                    const std::string& decimalSeparator, std::string& error) {
    QPrinter printer(QPrinter::HighResolution);
    a4(printer);
    QPrintDialog dialog(&printer);
    dialog.setWindowTitle(QStringLiteral("Print the report"));
    if (dialog.exec() != QDialog::Accepted) {
        return true;
    }
    if (!velmora::qt::paintReport(printer, pagesOf(records, count, decimalSeparator))) {
        error = "cannot print on " + printer.printerName().toStdString();
        return false;
    }
    return true;
}

// The callers call them through these types.
static_assert(std::is_same_v<decltype(&velmora_writeReportPdf), velmora::report_module::WritePdf>);
static_assert(std::is_same_v<decltype(&velmora_printReport), velmora::report_module::Print>);
