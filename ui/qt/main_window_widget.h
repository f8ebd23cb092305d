#pragma once

// The main window on the desktop: the widgets of resources/main_window.ui and of its tabs' pages
// (resources/best_matches_page.ui, resources/records_page.ui), each bound to the window element of
// the same name, and the File menu's Save and Quit for the application to connect.

#include "ui/main_window.h"

#include <QMainWindow>
#include <functional>
#include <memory>
#include <vector>

class QAction;

namespace Ui {
class BestMatchesPageForm;
class MainWindowForm;
class RecordsPageForm;
} // namespace Ui

namespace velmora::qt {

class ElementBinding;

class MainWindowWidget final : public QMainWindow {
public:
    // The elements must outlive the widget.
    explicit MainWindowWidget(MainWindow& elements, QWidget* parent = nullptr);
    ~MainWindowWidget() override;

    QAction* saveAction() const;
    QAction* quitAction() const;

    // Asked when the user closes the window; false keeps it open. Without one it closes.
    void setCloseRequestHandler(std::function<bool()> handler) {
        closeRequest_ = std::move(handler);
    }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void bindElements(MainWindow& elements);
    // A tab's own widgets, bound to their elements, the first time the tab is shown.
    void makePage(QWidget* page);

    MainWindow& elements_;
    std::unique_ptr<Ui::MainWindowForm> form_;
    std::unique_ptr<Ui::BestMatchesPageForm> bestMatchesPage_;
    std::unique_ptr<Ui::RecordsPageForm> recordsPage_;
    std::vector<std::unique_ptr<ElementBinding>> bindings_;
    std::function<bool()> closeRequest_;
};

} // namespace velmora::qt
