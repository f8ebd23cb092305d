#include "ui/qt/main_window_widget.h"

#include "ui/qt/button_binding.h"
#include "ui/qt/capture_bindings.h"
#include "ui/qt/entry_binding.h"
#include "ui/qt/label_binding.h"
#include "ui/qt/pop_up_binding.h"
#include "ui/qt/table_binding.h"
#include "ui/qt/text_view_binding.h"
#include "ui/qt/window_style.h"
#include "ui_best_matches_page.h"
#include "ui_main_window.h"
#include "ui_records_page.h"

#include <QCloseEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QShortcut>
#include <concepts>

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

// Binds each element to its widget. The kind of binding follows from the element's type and the
// widget's class in the form, so the element list says nothing of Qt; an element on a widget no
// binding fits does not compile.
class Binder {
public:
    Binder(MainWindow& window, std::vector<std::unique_ptr<ElementBinding>>& bindings)
        : window_(window), bindings_(bindings) {}

    void bind(MainWindow& window, QWidget* widget) { add<TitleBinding>(window, widget); }
    // Only a plain view: an element of a derived type never falls back to the view's binding.
    void bind(std::same_as<View> auto& view, QWidget* widget) { add<ViewBinding>(view, widget); }
    void bind(Button& button, QAbstractButton* widget) { add<ButtonBinding>(button, widget); }
    void bind(TextField& field, QLineEdit* widget) { add<EntryBinding>(field, widget, window_); }
    void bind(TextField& field, QLabel* widget) { add<LabelBinding>(field, widget); }
    void bind(PopUpButton& popUp, QComboBox* widget) { add<PopUpBinding>(popUp, widget); }
    void bind(TableView& table, QTableView* widget) { add<TableBinding>(table, widget); }
    void bind(TextView& view, QPlainTextEdit* widget) { add<TextViewBinding>(view, widget); }
    void bind(LayoutConstraint& height, QWidget* widget) { add<HeightBinding>(height, widget); }
    void bind(StripChart& chart, StripChartWidget* widget) {
        add<StripChartBinding>(chart, widget);
    }
    void bind(TabView& tabs, QTabWidget* widget) { add<TabBinding>(tabs, widget); }

private:
    template <class Binding, class... Arguments> void add(Arguments&&... arguments) {
        auto binding = std::make_unique<Binding>(std::forward<Arguments>(arguments)...);
        binding->refresh();
        bindings_.push_back(std::move(binding));
    }

    MainWindow& window_;
    std::vector<std::unique_ptr<ElementBinding>>& bindings_;
};

// A tab's widgets from their form. The tab is showing already: what it now holds shows with it
// at once, not on the next turn of the event loop, as Qt would do for widgets added to a shown
// layout.
template <class Form> std::unique_ptr<Form> fillPage(QWidget& page) {
    auto form = std::make_unique<Form>();
    form->setupUi(&page);
    WindowStyle::dress(page);
    for (QWidget* child : page.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (!child->testAttribute(Qt::WA_WState_ExplicitShowHide)) {
            child->show();
        }
    }
    return form;
}

} // namespace

MainWindowWidget::MainWindowWidget(MainWindow& elements, QWidget* parent)
    : QMainWindow(parent), elements_(elements), form_(std::make_unique<Ui::MainWindowForm>()) {
    form_->setupUi(this);
    WindowStyle::markWindow(*this);
    WindowStyle::dress(*this);
    bindElements(elements);
    connect(form_->resultsTabs, &QTabWidget::currentChanged, this,
            [this](int index) { makePage(form_->resultsTabs->widget(index)); });
    makePage(form_->resultsTabs->currentWidget());
    // A shortcut, so a button that has the keyboard does not take Space as its own click; an
    // entry being edited still gets it as text.
    auto* space = new QShortcut(QKeySequence(Qt::Key_Space), this);
    connect(space, &QShortcut::activated, this, [this, &elements] {
        const QWidget* focus = focusWidget();
        if (!qobject_cast<const QLineEdit*>(focus) && !qobject_cast<const QPlainTextEdit*>(focus)) {
            elements.performKeyEquivalent(" ");
        }
    });
}

// The bindings go before the widgets do, so no element tells a widget that is gone.
MainWindowWidget::~MainWindowWidget() = default;

void MainWindowWidget::bindElements(MainWindow& w) {
    Ui::MainWindowForm& f = *form_;
    Binder binder(w, bindings_);
    binder.bind(w, this);
#define VELMORA_BIND_ELEMENT(Type, name, ...) binder.bind(w.name, f.name);
#define VELMORA_BIND_CONSTRAINT(name, view) binder.bind(w.name, f.view);
    VELMORA_MAIN_FORM_ELEMENTS(VELMORA_BIND_ELEMENT, VELMORA_BIND_CONSTRAINT)
#undef VELMORA_BIND_ELEMENT
#undef VELMORA_BIND_CONSTRAINT
}

void MainWindowWidget::makePage(QWidget* page) {
    Binder binder(elements_, bindings_);
#define VELMORA_BIND_ELEMENT(Type, name, ...) binder.bind(elements_.name, f.name);
    if (page == form_->tab_bestMatches && !bestMatchesPage_) {
        bestMatchesPage_ = fillPage<Ui::BestMatchesPageForm>(*page);
        Ui::BestMatchesPageForm& f = *bestMatchesPage_;
        VELMORA_BEST_MATCHES_PAGE_ELEMENTS(VELMORA_BIND_ELEMENT)
    } else if (page == form_->tab_records && !recordsPage_) {
        recordsPage_ = fillPage<Ui::RecordsPageForm>(*page);
        Ui::RecordsPageForm& f = *recordsPage_;
        VELMORA_RECORDS_PAGE_ELEMENTS(VELMORA_BIND_ELEMENT)
    }
#undef VELMORA_BIND_ELEMENT
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
