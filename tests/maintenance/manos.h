// The two ways in which a user works a screen: with the mouse and the keys, or with the keys alone.
#pragma once

#include "forms/directorylist.h"
#include "forms/form.h"
#include "forms/listbox.h"

#include <memory>

class Manos {
public:
    static std::unique_ptr<Manos> conRaton();
    static std::unique_ptr<Manos> conTeclas();

    Manos() = default;
    virtual ~Manos() = default;
    Manos(const Manos &) = delete;
    Manos &operator=(const Manos &) = delete;

    virtual void reach(QWidget &control) = 0; // gives it the focus
    virtual void press(QWidget &control) = 0; // a button of any kind, a check box
    virtual void select(forms::ListBox &list, const QString &entry) = 0;
    virtual void open(forms::DirectoryList &tree, const QString &directory) = 0;

    // Types in place of what stands in the box.
    void write(const forms::Form &form, const QString &box, const QString &text);
    void press(const forms::Form &form, const QString &control);
    void select(const forms::Form &form, const QString &list, const QString &entry);
};
