#include "drive.h"

#include "tests/support/opens.h"
#include "tests/support/printing.h"

#include "forms/combobox.h"
#include "forms/commandbutton.h"
#include "forms/directorylist.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/listbox.h"
#include "forms/plaintext.h"
#include "forms/popupmenu.h"
#include "forms/shownpart.h"
#include "forms/textbox.h"

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QTemporaryDir>
#include <QTest>
#include <QToolTip>
#include <QWindow>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Every widget that reads a text of it as more than a text changes it, or opens the file.
class PlainTexts : public testing::Test {
protected:
    PlainTexts()
    {
        EXPECT_TRUE(QImage(2, 2, QImage::Format_RGB32).save(directory.filePath(u"named.png"_s)));
        named = std::make_unique<OpensOf>(directory.filePath(u"named.png"_s));
        markup = u"<img src=\"%1\"><b>R&D</b> &amp; &x  [*]"_s.arg(directory.filePath(u"named.png"_s));
    }
    ~PlainTexts() override
    {
        QToolTip::hideText();
        EXPECT_EQ(named->count(), 0);
    }

    static QString told(QObject &object, QAccessible::Text kind = QAccessible::Name)
    {
        return QAccessible::queryAccessibleInterface(&object)->text(kind);
    }

    // What the tip at this point of the widget says; empty without one.
    static QString tipAt(QWidget &widget, const QPoint &point)
    {
        QToolTip::hideText();
        QHelpEvent rest(QEvent::ToolTip, point, widget.mapToGlobal(point));
        QApplication::sendEvent(&widget, &rest);
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window->windowType() == Qt::ToolTip && window->inherits("QLabel")) {
                window->grab();
                return told(*window);
            }
        }
        return {};
    }

    const QTemporaryDir directory;
    std::unique_ptr<OpensOf> named;
    QString markup;
    forms::Form form { u"Form"_s, 6000, 3000, forms::Form::Border::FixedSingle };
};

TEST_F(PlainTexts, TheTipOfATextBox_ShowsMarkupAsItIs)
{
    forms::TextBox box(&form);
    box.setGeometry(10, 10, 60, 20);
    box.SetTip();
    drive::show(form);
    box.SetText(markup);
    EXPECT_EQ(tipAt(box, { 5, 5 }), markup);
    EXPECT_EQ(told(box, QAccessible::Description), markup);
    EXPECT_EQ(told(box, QAccessible::Value), markup);
    box.SetText(QString(200, u'x') + u"\u00a0 a  b"_s);
    EXPECT_EQ(told(box, QAccessible::Description), box.Text());
    box.SetText(u"x"_s);
    EXPECT_EQ(told(box, QAccessible::Description), QString());
    EXPECT_EQ(box.toolTip(), QString());
}

TEST_F(PlainTexts, ATipTooLongForALine_IsNotBroken)
{
    const QString text = u"/a b/c-d"_s.repeated(20);
    forms::SetTip(form, text);
    drive::show(form);
    EXPECT_EQ(tipAt(form, { 5, 5 }), text);
    EXPECT_LT(QApplication::focusWindow() ? QToolTip::text().count(u'\n') : 0, 1);
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->inherits("QTipLabel")) {
            EXPECT_LT(window->height(), 2 * window->fontMetrics().height());
        }
    }
}

TEST_F(PlainTexts, ATipOfLines_IsBrokenAtItsBlanks)
{
    const QString text = u"<b>name  of a game</b> "_s.repeated(20).trimmed();
    form.setToolTip(forms::asTipOfLines(text));
    drive::show(form);
    EXPECT_EQ(tipAt(form, { 5, 5 }), text);
    int tips = 0;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->inherits("QTipLabel")) {
            ++tips;
            EXPECT_GT(window->height(), 2 * window->fontMetrics().height());
            EXPECT_LT(window->width(), window->fontMetrics().horizontalAdvance(text) / 2);
        }
    }
    EXPECT_EQ(tips, 1);
    EXPECT_EQ(forms::asTipOfLines(u"short"_s), forms::asTip(u"short"_s));
}

TEST_F(PlainTexts, TheTipOfADirectory_ShowsMarkupAsItIs)
{
    // A slash parts directories: the mark names it by its number.
    const QString name =
        u"<img src=\""_s + directory.filePath(u"named.png"_s).replace(u"/"_s, u"&#47;"_s) + u"\"><b>R&D"_s;
    ASSERT_TRUE(QDir(directory.path()).mkdir(name));
    forms::DirectoryList list(&form);
    list.setGeometry(0, 0, 200, 190);
    list.SetPath(directory.path());
    drive::show(form);
    int row = 0;
    while (row < list.ListCount() && list.List(row) != name)
        ++row;
    ASSERT_LT(row, list.ListCount());
    const QRect place = list.visualRect(list.model()->index(row, 0));
    EXPECT_EQ(tipAt(*list.viewport(), place.center()), directory.path() + u'/' + name);
    form.grab();
}

TEST_F(PlainTexts, ATipWithoutAnEnd_ComesAtOnce)
{
    for (const QString &piece : { u"x"_s, u"<b>"_s, u"a "_s, u"\n"_s, u"\u0644"_s }) {
        forms::SetTip(form, piece.repeated(1'000'000));
        drive::show(form);
        QElapsedTimer time;
        time.start();
        const QString shown = tipAt(form, { 5, 5 });
        EXPECT_EQ(shown, forms::shownPart(piece.repeated(2000)));
        EXPECT_LT(time.elapsed(), 1000) << piece.toStdString();
    }
}

TEST_F(PlainTexts, ACaptionOfAButton_IsNoAccelerator)
{
    forms::CommandButton button(&form);
    button.SetCaption(markup);
    EXPECT_EQ(button.Caption(), markup);
    EXPECT_EQ(told(button), markup);
    EXPECT_TRUE(button.shortcut().isEmpty());
}

TEST_F(PlainTexts, ATitle_KeepsTheMarkOfAChange)
{
    form.SetCaption(markup);
    drive::show(form);
    EXPECT_EQ(form.Caption(), markup);
    EXPECT_EQ(form.windowHandle()->title(), markup);
    EXPECT_EQ(told(form), markup);
}

TEST_F(PlainTexts, ALabel_ReadsNoMarks)
{
    forms::Label label(&form);
    label.setGeometry(0, 0, 300, 50);
    label.SetCaption(markup);
    drive::show(form);
    form.grab();
    EXPECT_EQ(told(label), markup);
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
}

TEST_F(PlainTexts, EntriesOfLists_ReadNoMarks)
{
    forms::ListBox list(&form);
    forms::ComboBox combo(&form);
    list.setGeometry(0, 0, 300, 50);
    combo.setGeometry(0, 60, 300, 20);
    list.AddItem(markup);
    combo.AddItem(markup);
    combo.SetListIndex(0);
    list.SetListIndex(0);
    drive::show(form);
    combo.showPopup();
    form.grab();
    combo.view()->grab();
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&list)->child(0)->text(QAccessible::Name), markup);
    EXPECT_EQ(told(combo, QAccessible::Value), markup);
    EXPECT_EQ(tipAt(*list.viewport(), { 5, 5 }), markup); // it has no room
    combo.hidePopup();
}

TEST_F(PlainTexts, AMenuEntry_ReadsOnlyTheAccelerator)
{
    forms::PopupMenu menu(u"Menu"_s, &form);
    forms::MenuEntry *entry = menu.AddEntry(u"Entry"_s, u"Empty"_s);
    entry->SetCaption(markup + u"\t2"_s);
    drive::show(form);
    menu.popup(form.pos());
    menu.grab();
    EXPECT_EQ(entry->action()->text(), markup + u" 2"_s);
    EXPECT_EQ(menu.toolTipsVisible(), false);
    menu.close();
}

} // namespace
