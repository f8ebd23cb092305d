#include "tests/ui/qt/shell_fixture.h"

#include "device/sim/replayed_readings.h"
#include "device/sim/simulated_instrument.h"
#include "tests/support/reference_rows.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QPdfWriter>
#include <QTableView>
#include <QTest>
#include <QTimer>

namespace velmora::test {
namespace {

class English final : public LocalizedStrings {
public:
    std::string localizedString(const std::string& key) const override { return key; }
} english;

const std::vector<std::string> referenceRows = {
    stoneRow("1", "Rock crystal", "1.544-1.553", "2.64-2.66", "7-7", "Colorless"),
    stoneRow("2", "Citrine", "1.544-1.553", "2.64-2.66", "7-7", "Yellow"),
    stoneRow("185", "Iolite", "1.522-1.578", "2.58-2.66", "7-7.5", "Blue"),
    stoneRow("190", "Scapolite", "1.540-1.600", "2.57-2.74", "6-6"),
    stoneRow("50", "Ruby", "1.757-1.779", "3.97-4.05", "9-9", "Red"),
};

void writeTutorial(const std::filesystem::path& file) {
    QPdfWriter pdf(QString::fromStdU16String(file.u16string()));
    QPainter painter(&pdf);
    painter.drawText(QPointF(100, 100), "Velmora desktop: a first session");
}

} // namespace

const QColor ShellTest::red(255, 0, 0);
const QColor ShellTest::green(52, 199, 89);

ShellTest::ShellTest()
    : instrument(sim::simulatedInstrumentFactory(std::make_shared<sim::ReplayedReadings>(
                     std::vector<std::uint16_t>{1544, 1545})),
                 runLoop, center, log),
      bundle({dir.path()}), screens(workspace, bundle) {}

ShellTest::~ShellTest() = default;

void ShellTest::open(const ShellSetup& setup) {
    if (setup.withTutorial) {
        writeTutorial(dir.path() / "Tutorial.pdf");
    }
    delegate_ = std::make_unique<AppDelegate>(
        instrument,
        [this, store = setup.store] {
            ++containersMade;
            return std::make_unique<MemoryStore>(store);
        },
        alerts, english, log);
    shell_ = std::make_unique<qt::ApplicationShell>(
        ViewControllerEnvironment{runLoop, center, alerts, locale,
                                  dir.write("AllStoneNew.csv", referenceText(referenceRows)),
                                  standardOutput, screens, instrument},
        *delegate_);
    tableModelTester_ = std::make_unique<QAbstractItemModelTester>(
        widget<QTableView>("tableView")->model(),
        QAbstractItemModelTester::FailureReportingMode::Fatal);
    window().resize(1280, 800);
    window().show();
    QApplication::setActiveWindow(&window());
    settle();
}

void ShellTest::settle() {
    runLoop.runPending();
    QCoreApplication::processEvents();
}

void ShellTest::click(const char* name) {
    auto* button = widget<QAbstractButton>(name);
    // A check box answers on its box and its title only.
    const QPoint where = qobject_cast<QCheckBox*>(button) ? QPoint(7, button->height() / 2)
                                                          : button->rect().center();
    QTest::mouseClick(button, Qt::LeftButton, {}, where);
    settle();
}

void ShellTest::type(const char* entry, const QString& typed) {
    auto* field = widget<QLineEdit>(entry);
    QTest::mouseClick(field, Qt::LeftButton);
    QTest::keyClicks(field, typed);
    settle();
}

void ShellTest::pressKey(Qt::Key key) {
    QTest::keyClick(QApplication::focusWidget(), key);
    settle();
}

void ShellTest::whileScreenOpen(const char* button, const std::function<void(QWidget&)>& look) {
    bool looked = false;
    QTimer::singleShot(0, [&] {
        QWidget* screen = QApplication::activeModalWidget();
        ASSERT_NE(screen, nullptr);
        look(*screen);
        looked = true;
        screen->close();
    });
    click(button);
    EXPECT_TRUE(looked);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

QColor ShellTest::colourAt(const char* name) {
    QWidget* shown = widget(name);
    return shown->grab().toImage().pixelColor(shown->width() / 2, shown->height() / 2);
}

QStringList ShellTest::listedStones() {
    const QAbstractItemModel* model = widget<QTableView>("tableView")->model();
    QStringList names;
    for (int row = 0; row < model->rowCount(); ++row) {
        names << model->index(row, 1).data().toString();
    }
    return names;
}

QString ShellTest::text(const char* name) {
    QWidget* shown = widget(name);
    const QVariant text =
        shown ? shown->property(qobject_cast<QComboBox*>(shown) ? "currentText" : "text")
              : QVariant();
    EXPECT_TRUE(text.isValid()) << name << " shows no text";
    return text.toString();
}

} // namespace velmora::test
