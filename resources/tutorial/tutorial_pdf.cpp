// Builds the tutorial document: the Markdown guide, with the application's screenshots, laid out
// on A4 pages. Run at build time; a screenshot that is missing leaves its caption in its place.
//
//   tutorial-pdf GUIDE.md SCREENSHOT_DIR OUTPUT.pdf

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFragment>
#include <QTextImageFormat>
#include <QUrl>
#include <cstdio>

namespace {

constexpr int dpi = 300;

// Markdown images whose file is not there become their caption in italics.
QString withMissingImagesAsCaptions(const QString& markdown, const QString& screenshots) {
    static const QRegularExpression image(QStringLiteral(R"(!\[([^\]]*)\]\(([^)]+)\))"));
    QString out;
    qsizetype last = 0;
    for (auto it = image.globalMatch(markdown); it.hasNext();) {
        const auto match = it.next();
        out += markdown.mid(last, match.capturedStart() - last);
        const bool present = QFileInfo::exists(screenshots + QLatin1Char('/') + match.captured(2));
        out += present ? match.captured(0) : QStringLiteral("*%1*").arg(match.captured(1));
        last = match.capturedEnd();
    }
    return out + markdown.mid(last);
}

// Every image at the full text width, its height in proportion.
void fitImages(QTextDocument& document, const QString& screenshots, qreal width) {
    QTextCursor cursor(&document);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            QTextImageFormat format = fragment.charFormat().toImageFormat();
            if (!format.isValid()) {
                continue;
            }
            const QImage picture(screenshots + QLatin1Char('/') + format.name());
            if (picture.isNull()) {
                continue;
            }
            document.addResource(QTextDocument::ImageResource, QUrl(format.name()), picture);
            format.setWidth(width);
            format.setHeight(width * picture.height() / picture.width());
            cursor.setPosition(fragment.position());
            cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
            cursor.setCharFormat(format);
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    if (argc != 4) {
        std::fprintf(stderr, "usage: tutorial-pdf GUIDE.md SCREENSHOT_DIR OUTPUT.pdf\n");
        return 2;
    }
    QFile guide(QString::fromLocal8Bit(argv[1]));
    if (!guide.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "tutorial-pdf: cannot read %s\n", argv[1]);
        return 1;
    }
    const QString screenshots = QString::fromLocal8Bit(argv[2]);

    QPdfWriter pdf(QString::fromLocal8Bit(argv[3]));
    pdf.setResolution(dpi);
    pdf.setTitle(QStringLiteral("Velmora desktop: a first session"));
    pdf.setCreator(QStringLiteral("Velmora desktop"));
    pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                  QMarginsF(20, 20, 20, 20), QPageLayout::Millimeter));

    QTextDocument document;
    // Measure text in the PDF's own resolution, so point sizes are true on paper.
    document.documentLayout()->setPaintDevice(&pdf);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSizeF(10.5);
    document.setDefaultFont(font);
    document.setDefaultStyleSheet(QStringLiteral("h1 { color: #121b32; } h2 { color: #1f3a6b; }"));
    document.setMarkdown(
        withMissingImagesAsCaptions(QString::fromUtf8(guide.readAll()), screenshots));
    const QSizeF page = pdf.pageLayout().paintRectPixels(dpi).size();
    document.setPageSize(page);
    // Image sizes are read in screen pixels (96 per inch) and scaled to the device on drawing.
    const qreal screenPixels = page.width() * 96.0 / dpi;
    fitImages(document, screenshots, screenPixels);
    document.print(&pdf);
    return 0;
}
