#pragma once

// The main window on the desktop: the widgets of resources/main_window.ui, each bound to the
// window element of the same name, and the File menu's Save and Quit for the application to
// connect.

#include "ui/main_window.h"

#include <QMainWindow>
#include <functional>
#include <memory>
#include <vector>

class QAction;

namespace Ui {
class MainWindowForm;
}

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

    std::unique_ptr<Ui::MainWindowForm> form_;
    std::vector<std::unique_ptr<ElementBinding>> bindings_;
    std::function<bool()> closeRequest_;
};

} // namespace velmora::qt
