#include "forms/assistance.h"

#include "forms/checks.h"
#include "forms/commandbutton.h"
#include "forms/form.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/listbox.h"
#include "forms/picturebutton.h"

#include <QAccessibleWidget>
#include <QApplication>

#include <utility>

namespace forms {

namespace {

class Kept final : public QObject {
public:
    Kept(QWidget &control, Assistance given)
        : QObject(&control)
        , assistance(std::move(given))
    {
    }

    const Assistance assistance;
};

const Assistance *keptFor(const QObject &control)
{
    for (const QObject *child : control.children()) {
        if (const auto *kept = dynamic_cast<const Kept *>(child))
            return &kept->assistance;
    }
    return nullptr;
}

QRect onScreen(const QWidget &widget)
{
    return { widget.mapToGlobal(QPoint(0, 0)), widget.size() };
}

// The widget of a window that stands in the window itself and holds this one.
const QWidget *outermost(const QWidget &control)
{
    const QWidget *outer = &control;
    while (outer->parentWidget() && !outer->parentWidget()->isWindow())
        outer = outer->parentWidget();
    return outer;
}

class Access final : public QAccessibleWidget {
public:
    Access(QWidget &control, Assistance byClass)
        : QAccessibleWidget(&control)
        , m_byClass(std::move(byClass))
    {
    }

    QAccessible::Role role() const override { return assistance().role; }

    QString text(QAccessible::Text kind) const override
    {
        // The toolkit would give the tip with its marks, which says no more than the name.
        if (kind == QAccessible::Description)
            return widget()->accessibleDescription();
        const QString given = QAccessibleWidget::text(kind);
        if (!given.isEmpty() || kind != QAccessible::Name)
            return given;
        if (const auto *label = qobject_cast<const QLabel *>(widget()))
            return label->text();
        const auto *button = dynamic_cast<const CommandButton *>(widget());
        return button ? button->Caption() : QString();
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.offscreen = IsCovered(*widget());
        // The toolkit says it of each control that would hand the focus on to the one that has it.
        if (widget()->focusProxy())
            state.focused = false;
        state.linked = role() == QAccessible::Link;
        if (assistance().isOn) {
            state.checkable = true;
            state.checked = assistance().isOn();
        }
        state.pressed = isPressed();
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names;
        if (assistance().press && widget()->isEnabled())
            names << pressAction();
        return names + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &action) override
    {
        if (action != pressAction())
            QAccessibleWidget::doAction(action);
        else if (assistance().press && widget()->isEnabled())
            assistance().press();
    }

    QStringList keyBindingsForAction(const QString &action) const override
    {
        const auto *button = qobject_cast<const QAbstractButton *>(widget());
        if (action != pressAction() || !button || button->shortcut().isEmpty())
            return {};
        return { button->shortcut().toString() };
    }

private:
    bool isPressed() const
    {
        if (const auto *button = dynamic_cast<const CommandButton *>(widget()))
            return button->isDown();
        const auto *picture = dynamic_cast<const PictureButton *>(widget());
        return picture && picture->ShowsPressed();
    }

    // Asked for each time: a label is known to assistive programs before its screen says what it is.
    const Assistance &assistance() const
    {
        const Assistance *kept = keptFor(*widget());
        return kept ? *kept : m_byClass;
    }

    const Assistance m_byClass;
};

// A window without its lists that are covered: those have access of the toolkit's own, which doesn't know.
class WindowAccess final : public QAccessibleWidget {
public:
    explicit WindowAccess(Form &form)
        : QAccessibleWidget(&form, QAccessible::Window)
    {
    }

    int childCount() const override { return int(shown().size()); }
    QAccessibleInterface *child(int index) const override { return shown().value(index); }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return int(shown().indexOf(const_cast<QAccessibleInterface *>(child)));
    }

private:
    QList<QAccessibleInterface *> shown() const
    {
        QList<QAccessibleInterface *> children;
        for (int i = 0; i < QAccessibleWidget::childCount(); ++i) {
            QAccessibleInterface *child = QAccessibleWidget::child(i);
            const auto *list = child ? dynamic_cast<const ListBox *>(child->object()) : nullptr;
            if (!list || !IsCovered(*list))
                children << child;
        }
        return children;
    }
};

QAccessibleInterface *accessOf(const QString &, QObject *object)
{
    auto *control = qobject_cast<QWidget *>(object);
    if (!control)
        return nullptr;
    if (auto *button = dynamic_cast<PictureButton *>(object))
        return new Access(*control, { QAccessible::Button, [button] { button->animateClick(); }, {} });
    if (auto *button = dynamic_cast<CommandButton *>(object))
        return new Access(*control, { QAccessible::Button, [button] { button->animateClick(); }, {} });
    if (auto *check = dynamic_cast<CheckBox *>(object))
        return new Access(*control,
            { QAccessible::CheckBox, [check] { check->click(); }, [check] { return check->isChecked(); } });
    if (auto *form = dynamic_cast<Form *>(object))
        return new WindowAccess(*form);
    if (dynamic_cast<Image *>(object))
        return new Access(*control, {});
    if (dynamic_cast<Label *>(object))
        return new Access(*control, { QAccessible::StaticText, {}, {} });
    return nullptr;
}

} // namespace

void SetAssistance(QWidget &control, Assistance assistance)
{
    new Kept(control, std::move(assistance));
}

void TellOfChoice(QWidget &control)
{
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(&control, changed);
    QAccessible::updateAccessibility(&event);
}

bool IsCovered(const QWidget &control)
{
    if (!control.isVisible())
        return false;
    const QRect place = onScreen(control);
    const QWidget *window = control.window();
    const QWidget *blocking = QApplication::activeModalWidget();
    if (blocking && blocking != window && blocking->frameGeometry().contains(place))
        return true;
    // What stands in the same window is stacked in the order of its children.
    bool above = false;
    for (const QObject *child : window->children()) {
        const auto *other = qobject_cast<const QWidget *>(child);
        if (!other || other->isWindow())
            continue;
        if (other == outermost(control))
            above = true;
        else if (above && other->isVisible() && other->autoFillBackground()
            && onScreen(*other).contains(place))
            return true;
    }
    return false;
}

void TellOfCover(QWidget &window)
{
    const auto controls = window.findChildren<QWidget *>();
    for (QWidget *control : controls) {
        if (!control->isVisible() || control->isWindow())
            continue;
        QAccessibleEvent event(
            control, IsCovered(*control) ? QAccessible::ObjectHide : QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&event);
    }
}

void TellAssistantsOfControls()
{
    QAccessible::installFactory(&accessOf);
}

} // namespace forms
