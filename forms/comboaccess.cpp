#include "forms/comboaccess.h"

#include "forms/assistance.h"
#include "forms/combobox.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

QString withEntry(const QString &name, const QString &entry)
{
    if (name.isEmpty() || entry.isEmpty())
        return name + entry;
    return name + (name.endsWith(u':') ? u" "_s : u": "_s) + entry;
}

class ComboAccess final : public QAccessibleWidget {
public:
    explicit ComboAccess(ComboBox &combo)
        : QAccessibleWidget(&combo, QAccessible::ComboBox)
        , m_combo(combo)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        switch (kind) {
        case QAccessible::Value:
            return m_combo.Text();
        case QAccessible::Name:
            return withEntry(m_combo.accessibleName(), m_combo.Text());
        default:
            return QAccessibleWidget::text(kind);
        }
    }

    // The list that drops down. While it is shut it is none: its entries would count as showing.
    int childCount() const override { return m_combo.view()->isVisible() ? 1 : 0; }
    QAccessibleInterface *child(int index) const override
    {
        return index == 0 && childCount() > 0 ? QAccessible::queryAccessibleInterface(m_combo.view())
                                              : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child && childCount() > 0 && child->object() == m_combo.view() ? 0 : -1;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.offscreen = IsCovered(m_combo);
        // It would hand the focus on, and the toolkit says that it has it where the other one does.
        if (m_combo.focusProxy())
            state.focused = false;
        state.expandable = true;
        state.expanded = m_combo.view()->isVisible();
        return state;
    }

    QStringList actionNames() const override { return { showMenuAction(), pressAction() }; }
    void doAction(const QString &action) override
    {
        if (!m_combo.isEnabled() || !actionNames().contains(action))
            return;
        if (m_combo.view()->isVisible())
            m_combo.hidePopup();
        else
            m_combo.showPopup();
    }

private:
    ComboBox &m_combo;
};

QAccessibleInterface *comboAccessOf(const QString &, QObject *object)
{
    auto *combo = dynamic_cast<ComboBox *>(object);
    return combo ? new ComboAccess(*combo) : nullptr;
}

} // namespace

void TellAssistantsOfCombos()
{
    QAccessible::installFactory(&comboAccessOf);
}

// What the toolkit itself tells of it, a changed value, isn't handed on.
void TellOfEntry(ComboBox &combo)
{
    QAccessibleEvent changed(&combo, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&changed);
}

} // namespace forms
