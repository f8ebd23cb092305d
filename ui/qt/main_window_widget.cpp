#include "ui/qt/main_window_widget.h"

#include "ui/qt/button_binding.h"
#include "ui/qt/entry_binding.h"
#include "ui/qt/label_binding.h"
#include "ui/qt/pop_up_binding.h"
#include "ui/qt/table_binding.h"
#include "ui/qt/text_view_binding.h"
#include "ui_main_window.h"

#include <QCloseEvent>

namespace velmora::qt {
namespace {

// The window's own title.
class TitleBinding final : public ElementBinding {
public:
    TitleBinding(MainWindow& window, QWidget* widget)
        : ElementBinding(window), window_(window), widget_(widget) {}

protected:
    void apply(Property property) override {
        if (property == Property::Title) {
            widget_->setWindowTitle(QString::fromStdString(window_.title()));
        }
    }

private:
    MainWindow& window_;
    QWidget* widget_;
};

// A height the window's logic sets on a container; at zero the container is gone, so nothing in
// it can take the keyboard either.
class HeightBinding final : public ElementBinding {
public:
    HeightBinding(LayoutConstraint& constraint, QWidget* widget)
        : ElementBinding(constraint), constraint_(constraint), widget_(widget) {}

protected:
    void apply(Property property) override {
        if (property == Property::Constant) {
            const int height = qRound(constraint_.constant());
            widget_->setFixedHeight(height);
            widget_->setVisible(height > 0);
        }
    }

private:
    LayoutConstraint& constraint_;
    QWidget* widget_;
};

} // namespace

MainWindowWidget::MainWindowWidget(MainWindow& elements, QWidget* parent)
    : QMainWindow(parent), form_(std::make_unique<Ui::MainWindowForm>()) {
    form_->setupUi(this);
    bindElements(elements);
}

// The bindings go before the widgets do, so no element tells a widget that is gone.
MainWindowWidget::~MainWindowWidget() = default;

template <class Binding, class... Arguments> void MainWindowWidget::bind(Arguments&&... arguments) {
    auto binding = std::make_unique<Binding>(std::forward<Arguments>(arguments)...);
    binding->refresh();
    bindings_.push_back(std::move(binding));
}

void MainWindowWidget::bindElements(MainWindow& w) {
    Ui::MainWindowForm& f = *form_;
    bind<TitleBinding>(w, this);
    bind<ViewBinding>(w.view, f.view);

    bind<ViewBinding>(w.box, f.box);
    bind<ButtonBinding>(w.btn_RIReading, f.btn_RIReading);
    bind<ButtonBinding>(w.bvtn_dictionary, f.bvtn_dictionary);
    bind<ButtonBinding>(w.btn_tutorial, f.btn_tutorial);
    bind<ButtonBinding>(w.btn_contactUs, f.btn_contactUs);
    bind<ViewBinding>(w.border_RiReading, f.border_RiReading);
    bind<ViewBinding>(w.border_dictionary, f.border_dictionary);

    bind<ViewBinding>(w.view_leftPanel, f.view_leftPanel);
    bind<ButtonBinding>(w.check_RI, f.check_RI);
    bind<ButtonBinding>(w.check_sg, f.check_sg);
    bind<ButtonBinding>(w.check_hardness, f.check_hardness);
    bind<ButtonBinding>(w.check_color, f.check_color);
    bind<ButtonBinding>(w.check_Name, f.check_Name);
    bind<ViewBinding>(w.check_Name_Container, f.check_Name_Container);
    bind<EntryBinding>(w.txt_leftRIReading, f.txt_leftRIReading, w);
    bind<EntryBinding>(w.txt_leftSG, f.txt_leftSG, w);
    bind<EntryBinding>(w.txt_leftHardness, f.txt_leftHardness, w);
    bind<EntryBinding>(w.txt_left_name, f.txt_left_name, w);
    bind<PopUpBinding>(w.btn_color, f.btn_color);
    bind<ViewBinding>(w.view_color, f.view_color);
    bind<ButtonBinding>(w.btn_search, f.btn_search);
    bind<ButtonBinding>(w.btn_enter, f.btn_enter);
    bind<ButtonBinding>(w.btn_clearAll, f.btn_clearAll);
    bind<ButtonBinding>(w.btn_reset, f.btn_reset);

    bind<ViewBinding>(w.view_reading, f.view_reading);
    bind<HeightBinding>(w.reading_container_heightConstraint, f.view_reading);
    bind<LabelBinding>(w.usb_device_reading, f.usb_device_reading);
    bind<ViewBinding>(w.view_deviceStatus, f.view_deviceStatus);
    bind<LabelBinding>(w.lbl_deviceStatus, f.lbl_deviceStatus);
    bind<ButtonBinding>(w.btn_connected, f.btn_connected);
    bind<ButtonBinding>(w.btn_disconnected, f.btn_disconnected);

    bind<PopUpBinding>(w.btn_stonesList, f.btn_stonesList);
    bind<LabelBinding>(w.lbl_stonesCount, f.lbl_stonesCount);
    bind<TableBinding>(w.tableView, f.tableView);
    bind<EntryBinding>(w.txt_RI, f.txt_RI, w);
    bind<EntryBinding>(w.txt_sg, f.txt_sg, w);
    bind<EntryBinding>(w.txt_hardness, f.txt_hardness, w);
    bind<EntryBinding>(w.txt_bierfence, f.txt_bierfence, w);
    bind<EntryBinding>(w.txt_stroneFamily, f.txt_stroneFamily, w);
    bind<TextViewBinding>(w.txt_commonSource, f.txt_commonSource);
    bind<TextViewBinding>(w.txt_otherInformation, f.txt_otherInformation);
    bind<TextViewBinding>(w.txt_otherProduct, f.txt_otherProduct);
}

QAction* MainWindowWidget::saveAction() const {
    return form_->actionSave;
}

QAction* MainWindowWidget::quitAction() const {
    return form_->actionQuit;
}

void MainWindowWidget::closeEvent(QCloseEvent* event) {
    if (closeRequest_ && !closeRequest_()) {
        event->ignore();
        return;
    }
    QMainWindow::closeEvent(event);
}

} // namespace velmora::qt
