// velmora-screenshots OUTDIR: walks the real window through the road a new user takes, against
// the simulated instrument, and saves a screenshot of each stop into OUTDIR. The tutorial shows
// them. It runs offscreen unless QT_QPA_PLATFORM says otherwise.

#include "app/qt/application_shell.h"
#include "app/qt/dialog_screen_presenter.h"
#include "app/qt/light_appearance.h"
#include "app/qt/qt_run_loop.h"
#include "app/sqlite/sqlite_store.h"
#include "data/reference_loader.h"
#include "device/sim/simulated_instrument.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPdfDocument>
#include <QPdfView>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <array>
#include <filesystem>
#include <iostream>

namespace velmora::qt {
namespace {

// Quartz on the prism, held steady.
constexpr std::uint16_t shownReading = 1544;
constexpr std::chrono::milliseconds patience{5000};

// Quartz held still, until the tour lifts it and turns a tourmaline on the prism: five positions
// between its two indices, each settling from above in a few readings and then held, wavering by
// a thousandth, long enough to be captured.
class TourReadings final : public sim::ReadingSource {
public:
    static constexpr std::array<std::uint16_t, 5> positions{1624, 1631, 1644, 1637, 1626};
    static constexpr int readingsPerPosition = 18;
    static constexpr int liftedReadings = 8;

    std::uint16_t next() override {
        if (!turning_) {
            return shownReading;
        }
        const int reading = count_++;
        if (reading < liftedReadings) {
            return 0;
        }
        const int step = (reading - liftedReadings) % readingsPerPosition;
        const auto position =
            static_cast<std::size_t>((reading - liftedReadings) / readingsPerPosition) %
            positions.size();
        static constexpr std::array<int, readingsPerPosition> settle{9, 4, 2, 0, 1, 0,  0, -1, 0,
                                                                     0, 1, 0, 0, 0, -1, 0, 1,  0};
        return static_cast<std::uint16_t>(positions[position] + settle[step]);
    }
    // From the loop's thread, as next() is called.
    void turnTourmaline() {
        count_ = 0;
        turning_ = true;
    }

private:
    bool turning_ = false;
    int count_ = 0;
};

class QuietLog final : public Log {
public:
    void info(std::string_view) override {}
    void error(std::string_view line) override { std::cerr << line << '\n'; }
};

// An alert means the road went wrong: say so, answer it and go on to fail at the end.
class UnexpectedAlerts final : public AlertPresenter {
public:
    std::size_t runModal(const std::string& message, const std::string& informative, AlertStyle,
                         const std::vector<std::string>&) override {
        std::cerr << "velmora-screenshots: unexpected alert: " << message << " " << informative
                  << '\n';
        ++count;
        return 0;
    }
    int count = 0;
};

class NoWorkspace final : public Workspace {
public:
    void openUrl(const std::string&) override {}
    void composeMail(const std::string&, const std::string&, const std::string&) override {}
};

class Tour {
public:
    Tour(MainWindowWidget& window, TourReadings& readings, const QDir& out)
        : window_(window), readings_(readings), out_(out) {}

    bool run() {
        window_.resize(1280, 800);
        window_.show();
        settle();

        click("btn_connected");
        const QString reading = QLocale::c().toString(shownReading / 1000.0, 'f', 3);
        if (!QTest::qWaitFor([&] { return child<QLabel>("usb_device_reading")->text() == reading; },
                             static_cast<int>(patience.count()))) {
            std::cerr
                << "velmora-screenshots: no live reading came from the simulated instrument\n";
            return false;
        }
        save(window_, "reading-tab.png");

        click("btn_enter");
        save(window_, "reading-enter.png");

        click("check_sg");
        type("txt_leftSG", "2.65");
        click("btn_search");
        save(window_, "reading-narrowed.png");

        click("bvtn_dictionary");
        pickStone("Ruby");
        save(window_, "dictionary-tab.png");

        click("check_Name");
        type("txt_left_name", "sapphire");
        click("btn_search");
        save(window_, "dictionary-name.png");

        // A ruby turned on the prism gives its two readings; weighed, its S.G.
        click("btn_clearAll");
        click("check_RI");
        type("txt_leftRIReading", "1.762");
        type("txt_leftRIHigh", "1.770");
        click("check_sg");
        type("txt_leftSG", "4.00");
        click("btn_search");
        child<QTabWidget>("resultsTabs")->setCurrentWidget(child<QWidget>("tab_bestMatches"));
        clickFirstRow("tbl_bestMatches");
        save(window_, "best-matches.png");

        keepRecords();
        save(window_, "records.png");
        if (!rotationSeries()) {
            return false;
        }

        saveScreen("btn_contactUs", "contact.png");
        saveScreen("btn_tutorial", "tutorial.png");
        return saved_ == 10;
    }

    // Answers the label the Records view asks for, so the tour opens no dialog.
    struct Labels final : RecordsDialogs {
        std::optional<std::string> askLabel() override { return next; }
        std::optional<std::filesystem::path> chooseSaveFile(const std::string&,
                                                            const std::string&) override {
            return std::nullopt;
        }
        std::string next;
    };

    void useLabels(ViewController& controller, AppDelegate& delegate) {
        controller.setRecordsServices(
            {[&delegate] { return delegate.persistentContainer().records(); }, &labels_, nullptr});
    }

    // A morning at the bench: three stones kept, one concluded, the ruby read back.
    void keepRecords() {
        labels_.next = "Client 2291, ring";
        click("btn_saveRecord");
        click("btn_clearAll");
        click("check_RI");
        type("txt_leftRIReading", "1.544");
        type("txt_leftRIHigh", "1.553");
        click("check_sg");
        type("txt_leftSG", "2.65");
        click("btn_search");
        labels_.next = "Lot 7, parcel 3 \"violet\"";
        click("btn_saveRecord");
        click("btn_clearAll");
        click("check_RI");
        type("txt_leftRIReading", "1.718");
        click("btn_search");
        labels_.next = "Lot 8, loose stone";
        click("btn_saveRecord");
        child<QTabWidget>("resultsTabs")->setCurrentWidget(child<QWidget>("tab_records"));
        settle();
        clickRow("tbl_records", 1);
        type("txt_recordConclusion", "Amethyst (quartz)");
        type("txt_recordNotes", "Colour zoning along the rhombohedron faces");
        click("btn_updateRecord");
    }

private:
    // A tourmaline turned on the prism and captured at every position as it holds steady; its
    // lowest and highest then ranked.
    bool rotationSeries() {
        click("btn_RIReading");
        click("check_autoCapture");
        click("btn_newStone");
        readings_.turnTourmaline();
        const auto captured = [this] {
            return child<QLabel>("lbl_seriesValues")
                ->text()
                .split("   ", Qt::SkipEmptyParts)
                .size();
        };
        const int wanted = static_cast<int>(TourReadings::positions.size());
        const auto turned =
            std::chrono::milliseconds(100) *
            (TourReadings::liftedReadings + TourReadings::readingsPerPosition * (wanted + 1));
        if (!QTest::qWaitFor([&] { return captured() >= wanted; },
                             static_cast<int>(turned.count()))) {
            std::cerr << "velmora-screenshots: the tourmaline's series was not captured\n";
            return false;
        }
        click("btn_identifySeries");
        save(window_, "rotation-series.png");
        return true;
    }

    template <class Widget> Widget* child(const char* name) {
        auto* widget = window_.findChild<Widget*>(name);
        if (!widget) {
            std::cerr << "velmora-screenshots: the window has no " << name << '\n';
            std::exit(1);
        }
        return widget;
    }

    // The work that the last gesture queued, and the repaint.
    static void settle() {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::processEvents();
        }
    }

    // As the user clicks: the entry being edited keeps the keyboard.
    void click(const char* name) {
        auto* button = child<QAbstractButton>(name);
        // A check box answers on its box and title, not on the rest of its width.
        const QPoint where = qobject_cast<QCheckBox*>(button) ? QPoint(7, button->height() / 2)
                                                              : button->rect().center();
        QTest::mouseClick(button, Qt::LeftButton, {}, where);
        settle();
    }

    void type(const char* name, const char* text) {
        QLineEdit* entry = child<QLineEdit>(name);
        entry->setFocus(Qt::MouseFocusReason);
        QTest::keyClicks(entry, text);
        settle();
    }

    void clickFirstRow(const char* name) { clickRow(name, 0); }

    void clickRow(const char* name, int row) {
        auto* table = child<QTableView>(name);
        const QRect cell = table->visualRect(table->model()->index(row, 1));
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell.center());
        settle();
    }

    void pickStone(const QString& name) {
        auto* popUp = child<QComboBox>("btn_stonesList");
        const int index = popUp->findText(name);
        popUp->setCurrentIndex(index);
        emit popUp->activated(index);
        settle();
    }

    void save(QWidget& widget, const char* file) {
        if (widget.grab().save(out_.filePath(file))) {
            ++saved_;
        } else {
            std::cerr << "velmora-screenshots: cannot write " << out_.filePath(file).toStdString()
                      << '\n';
        }
    }

    // The screen opens modally: it is photographed and closed from inside its own loop.
    void saveScreen(const char* button, const char* file) {
        QTimer::singleShot(0, &window_, [this, file] {
            QWidget* screen = QApplication::activeModalWidget();
            if (!screen) {
                return;
            }
            if (auto* viewer = screen->findChild<QPdfView*>()) {
                waitForPages(*viewer);
            }
            save(*screen, file);
            screen->close();
        });
        click(button);
    }

    // The viewer renders its pages on a worker thread; the first one is enough.
    static void waitForPages(QPdfView& viewer) {
        if (!viewer.document() || viewer.document()->pageCount() == 0) {
            return;
        }
        const QImage blank = viewer.grab().toImage();
        if (!QTest::qWaitFor([&] { return viewer.grab().toImage() != blank; },
                             static_cast<int>(patience.count()))) {
            std::cerr << "velmora-screenshots: the tutorial's pages were not drawn in time\n";
        }
    }

    MainWindowWidget& window_;
    TourReadings& readings_;
    QDir out_;
    int saved_ = 0;
    Labels labels_;
};

int run(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: velmora-screenshots OUTDIR\n";
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    useLightAppearance(application);
    const QDir out(QString::fromLocal8Bit(argv[1]));
    if (!QDir().mkpath(out.path())) {
        std::cerr << "velmora-screenshots: cannot create " << argv[1] << '\n';
        return 1;
    }

    QtRunLoop runLoop(&application);
    NotificationCenter center;
    QuietLog log;
    const auto readings = std::make_shared<TourReadings>();
    HIDDeviceConnector instrument(sim::simulatedInstrumentFactory(readings), runLoop, center, log);
    UnexpectedAlerts alerts;
    // The same notation on every machine, so the pictures match the tutorial's text.
    const FixedLocale locale(".");
    NoWorkspace workspace;
    DialogScreenPresenter screens(workspace, Bundle::main());
    QTemporaryDir data;
    const struct English final : LocalizedStrings {
        std::string localizedString(const std::string& key) const override { return key; }
    } strings;
    AppDelegate delegate(
        instrument,
        [&data] {
            return std::make_unique<SqliteStore>(
                std::filesystem::path(data.path().toStdU16String()) / "Velmora.sqlite",
                Bundle::main().pathForResource("Velmora", "sql"));
        },
        alerts, strings, log);
    ApplicationShell shell({runLoop, center, alerts, locale, referenceFilePath(Bundle::main()),
                            std::cerr, screens, instrument},
                           delegate);
    Tour tour(shell.window(), *readings, out);
    tour.useLabels(shell.controller(), delegate);
    const bool done = tour.run();
    instrument.disconnectDataToDevice();
    return done && alerts.count == 0 ? 0 : 1;
}

} // namespace
} // namespace velmora::qt

int main(int argc, char** argv) {
    return velmora::qt::run(argc, argv);
}
