// A menu that pops up at the pointer; it stands in no menu bar.
#pragma once

#include "forms/event.h"

#include <QMenu>

#include <memory>
#include <vector>

namespace forms {

class PopupMenu;

// An entry: an action under its own name ('&' marks the accelerator).
class MenuEntry {
public:
    Event<> Click;

    QString Caption() const;
    void SetCaption(const QString &caption);
    QAction *action() const { return m_action; }

private:
    friend class PopupMenu;
    explicit MenuEntry(QAction *action);
    QAction *m_action;
    QString m_caption;
};

class PopupMenu : public QMenu {
public:
    PopupMenu(const QString &name, QWidget *parent);
    ~PopupMenu() override;

    MenuEntry *AddEntry(const QString &name, const QString &caption);

    // At the pointer; returns when it has closed, and the entry chosen has raised its Click.
    void Popup();
    void PopupOver(const QWidget &control); // in its middle, for the keyboard
    void PopupUnder(const QWidget &control, const QRect &part); // the same beside what stands there

private:
    std::vector<std::unique_ptr<MenuEntry>> m_entries;
};

} // namespace forms
