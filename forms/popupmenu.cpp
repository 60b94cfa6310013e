#include "forms/popupmenu.h"

#include "forms/shownpart.h"

#include <QCursor>

namespace forms {

MenuEntry::MenuEntry(QAction *action)
    : m_action(action)
{
    QObject::connect(action, &QAction::triggered, action, [this] { Click.raise(); });
}

QString MenuEntry::Caption() const
{
    return m_caption;
}

void MenuEntry::SetCaption(const QString &caption)
{
    // What stands behind a tab would be shown as the entry's key.
    m_caption = caption;
    m_caption.replace(u'\t', u' ');
    // The toolkit measures the whole text of an entry for the width of the menu.
    m_action->setText(shownPart(m_caption));
}

PopupMenu::PopupMenu(const QString &name, QWidget *parent)
    : QMenu(parent)
{
    setObjectName(name);
}

PopupMenu::~PopupMenu() = default;

MenuEntry *PopupMenu::AddEntry(const QString &name, const QString &caption)
{
    QAction *action = addAction(QString());
    action->setObjectName(name);
    m_entries.push_back(std::unique_ptr<MenuEntry>(new MenuEntry(action)));
    m_entries.back()->SetCaption(caption);
    return m_entries.back().get();
}

void PopupMenu::Popup()
{
    exec(QCursor::pos());
}

void PopupMenu::PopupOver(const QWidget &control)
{
    exec(control.mapToGlobal(control.rect().center()));
}

void PopupMenu::PopupUnder(const QWidget &control, const QRect &part)
{
    const QRect seen = part & control.rect();
    if (seen.isEmpty())
        PopupOver(control);
    else
        exec(control.mapToGlobal(QPoint(seen.left() + seen.height(), seen.bottom() + 1)));
}

} // namespace forms
