#include "manos.h"

#include "tests/support/input.h"
#include "tests/support/screentest.h"

#include "forms/textbox.h"

using namespace Qt::StringLiterals;

namespace {

// A directory's own entry is the last of its name: those that lead to it stand ahead.
int rowOf(const forms::ListBox &list, const QString &entry)
{
    for (int row = list.ListCount() - 1; row >= 0; --row) {
        if (list.List(row) == entry)
            return row;
    }
    ADD_FAILURE() << "no entry " << entry.toStdString() << " in " << list.objectName().toStdString();
    return 0;
}

class Raton : public Manos {
public:
    void reach(QWidget &control) override { click(control); }
    void press(QWidget &control) override { click(control); }
    void select(forms::ListBox &list, const QString &entry) override { clickRow(list, rowOf(list, entry)); }
    void open(forms::DirectoryList &tree, const QString &directory) override
    {
        doubleClickRow(tree, rowOf(tree, directory));
    }
};

class Teclas : public Manos {
public:
    void reach(QWidget &control) override
    {
        constexpr int MaxControls = 60; // of one window
        QWidget &window = *control.window();
        for (int i = 0; i < MaxControls && window.focusWidget() != &control; ++i)
            strike(window, Qt::Key_Tab);
        EXPECT_EQ(window.focusWidget(), &control)
            << "Tab doesn't reach " << control.objectName().toStdString();
    }
    void press(QWidget &control) override
    {
        reach(control);
        strike(control, Qt::Key_Space);
    }
    void select(forms::ListBox &list, const QString &entry) override
    {
        reach(list);
        const int row = rowOf(list, entry);
        strike(list, Qt::Key_Home);
        for (int i = 0; i < row; ++i)
            strike(list, Qt::Key_Down);
        EXPECT_EQ(list.ListIndex(), row);
    }
    void open(forms::DirectoryList &tree, const QString &directory) override
    {
        select(tree, directory);
        strike(tree, Qt::Key_Return);
    }
};

} // namespace

std::unique_ptr<Manos> Manos::conRaton()
{
    return std::make_unique<Raton>();
}

std::unique_ptr<Manos> Manos::conTeclas()
{
    return std::make_unique<Teclas>();
}

void Manos::write(const forms::Form &form, const QString &box, const QString &text)
{
    auto &input = controlOf<forms::TextBox>(form, box);
    reach(input);
    strike(input, Qt::Key_A, Qt::ControlModifier);
    strike(input, Qt::Key_Delete);
    type(input, text);
    EXPECT_EQ(input.Text(), text);
}

void Manos::press(const forms::Form &form, const QString &control)
{
    press(controlOf<QWidget>(form, control));
}

void Manos::select(const forms::Form &form, const QString &list, const QString &entry)
{
    select(controlOf<forms::ListBox>(form, list), entry);
}
