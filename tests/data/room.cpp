#include "room.h"

#include "forms/combobox.h"
#include "forms/commandbutton.h"
#include "forms/shape.h"
#include "forms/units.h"

#include "tests/support/printing.h"

#include <QStyleOptionButton>
#include <QStyleOptionComboBox>

using namespace Qt::StringLiterals;

namespace room {

namespace {

// Where the text is drawn, in the parent; larger than the label's place if it doesn't fit in.
QRect textRect(const QLabel &label)
{
    const QFontMetrics letters = label.fontMetrics();
    const QRect place = label.contentsRect();
    if (label.wordWrap()) {
        const int flags = static_cast<int>(label.alignment()) | Qt::TextWordWrap;
        return letters.boundingRect(place, flags, label.text()).translated(label.pos());
    }
    const QSize size(letters.horizontalAdvance(label.text()), letters.height());
    return QStyle::alignedRect(Qt::LeftToRight, label.alignment(), size, place).translated(label.pos());
}

testing::AssertionResult failure(
    const QString &text, const char *what, const QRect &needed, const QRect &room)
{
    return testing::AssertionFailure()
        << testing::PrintToString(text) << ' ' << what << ": " << testing::PrintToString(needed)
        << " against " << testing::PrintToString(room);
}

// What the text must keep off. A frame has room within, for its heading on its upper line too, and so has a
// picture that the label lies on. Of another label only its text counts.
QRect takenBy(const QWidget &sibling, const QWidget &label, const QRect &text)
{
    if (sibling.isHidden() || sibling.isWindow())
        return {};
    if (const auto *frame = dynamic_cast<const forms::Shape *>(&sibling)) {
        QRect within = frame->geometry().adjusted(1, 1, -1, -1);
        if (frame->Heading() == &label)
            within.setTop(text.top());
        return within.contains(text) ? QRect() : frame->geometry();
    }
    if (sibling.geometry().contains(label.geometry()))
        return {};
    const auto *other = qobject_cast<const QLabel *>(&sibling);
    return other && !other->text().isEmpty() ? textRect(*other) : sibling.geometry();
}

testing::AssertionResult fits(const QString &text, const QFont &font, int width)
{
    const int needed = QFontMetrics(font).horizontalAdvance(text);
    if (needed <= width)
        return testing::AssertionSuccess();
    return testing::AssertionFailure()
        << testing::PrintToString(text) << " is too wide: " << needed << " against " << width;
}

} // namespace

testing::AssertionResult showsWhole(const forms::Label &label, const QWidget *beneath)
{
    const QRect text = textRect(label);
    if (!label.geometry().contains(text))
        return failure(label.text(), "doesn't fit in its place", text, label.geometry());
    if (!label.parentWidget()->rect().contains(text))
        return failure(label.text(), "is cut off by the edge", text, label.parentWidget()->rect());
    const auto siblings = label.parentWidget()->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    for (const QWidget *sibling : siblings) {
        if (sibling == &label || sibling == beneath)
            continue;
        const QRect taken = takenBy(*sibling, label, text);
        if (taken.intersects(text))
            return failure(label.text(), qPrintable(u"covers "_s + sibling->objectName()), text, taken);
    }
    return testing::AssertionSuccess();
}

testing::AssertionResult takes(const QPushButton &button, const QString &caption)
{
    constexpr int Bevel = 3;
    QStyleOptionButton option;
    option.initFrom(&button);
    const QRect inside = button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button);
    return fits(caption, button.font(), std::min(inside.width(), button.width() - 2 * Bevel));
}

testing::AssertionResult takes(const QComboBox &combo, const QString &entry)
{
    constexpr int Margin = 1; // of the text in its field
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.editable = false;
    const QRect field =
        combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo);
    return fits(entry, combo.font(), field.width() - 2 * Margin);
}

testing::AssertionResult titleTakes(const QString &caption, int width, bool boxes)
{
    constexpr int Edge = 300; // twips, both sides together
    constexpr int Boxes = 600;
    return fits(caption, forms::arial(8.25, true), forms::pixels(width - Edge - (boxes ? Boxes : 0)));
}

QStringList textsOf(const forms::Form &form)
{
    QStringList texts { form.Caption() };
    for (const QWidget *control : form.findChildren<QWidget *>()) {
        if (const auto *label = dynamic_cast<const forms::Label *>(control))
            texts += label->Caption();
        if (const auto *button = dynamic_cast<const forms::CommandButton *>(control))
            texts += button->Caption();
        const auto *combo = dynamic_cast<const forms::ComboBox *>(control);
        for (int i = 0; combo && i < combo->ListCount(); ++i)
            texts += combo->List(i);
    }
    return texts;
}

void expectWhole(const forms::Form &form)
{
    EXPECT_TRUE(titleTakes(form.Caption(), forms::twips(form.width()), true));
    for (const QWidget *control : form.findChildren<QWidget *>()) {
        SCOPED_TRACE(control->objectName().toStdString());
        if (const auto *label = dynamic_cast<const forms::Label *>(control); label && label->isVisible()) {
            EXPECT_TRUE(showsWhole(*label));
        }
        if (const auto *button = dynamic_cast<const forms::CommandButton *>(control)) {
            EXPECT_TRUE(takes(*button, button->Caption()));
        }
        const auto *combo = dynamic_cast<const forms::ComboBox *>(control);
        for (int i = 0; combo && i < combo->ListCount(); ++i)
            EXPECT_TRUE(takes(*combo, combo->List(i)));
    }
}

} // namespace room
