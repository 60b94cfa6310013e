// How the toolkit's controls look: colours that can be read, edges that are sharp at every scale, the focus
// that can be seen, and nothing that changes under the pointer.
#include "drive.h"

#include "forms/checks.h"
#include "forms/colours.h"
#include "forms/combobox.h"
#include "forms/commandbutton.h"
#include "forms/form.h"
#include "forms/listbox.h"
#include "forms/messageicons.h"
#include "forms/pieces.h"
#include "forms/shape.h"
#include "forms/textbox.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>
#include <QToolTip>

#include <gmock/gmock.h>

#include <cmath>
#include <set>

using namespace Qt::StringLiterals;
using forms::controlColours;
using forms::markColours;
using forms::popupColours;

namespace {

constexpr double Scales[] = { 1, 1.1, 1.25, 1.33, 1.5, 1.75, 2, 2.5, 3, 3.5, 4 };

double luminance(const QColor &colour)
{
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

struct Pair {
    QPalette::ColorRole letters;
    QPalette::ColorRole ground;
};

void expectReadable(const char *kind, const QPalette &palette, const std::vector<Pair> &pairs)
{
    for (const auto group : { QPalette::Active, QPalette::Inactive, QPalette::Disabled }) {
        for (const Pair &pair : pairs)
            EXPECT_GE(contrast(palette.color(group, pair.letters), palette.color(group, pair.ground)), 4.5)
                << kind << ", group " << group << ", letters " << pair.letters << " on " << pair.ground;
    }
}

// What a piece looks like on the screen at a scale, where it stands at design pixels that no whole number of
// the screen's fits.
QImage pictureAt(double scale, const std::function<void(QPainter &)> &draw)
{
    QImage picture(QSize(80, 60) * scale, QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::magenta);
    QPainter painter(&picture);
    painter.translate(3, 5);
    draw(painter);
    return picture;
}

// The colours met going down the middle of a picture, each once as long as it goes on, and how long.
using Runs = std::vector<std::pair<QRgb, int>>;
Runs runsDown(const QImage &picture, int x)
{
    Runs runs;
    for (int y = 0; y < picture.height(); ++y) {
        const QRgb colour = picture.pixel(x, y);
        if (runs.empty() || runs.back().first != colour)
            runs.emplace_back(colour, 0);
        ++runs.back().second;
    }
    return runs;
}

int whites(const QImage &picture, int least = 255)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb colour = picture.pixel(x, y);
            count += std::min({ qRed(colour), qGreen(colour), qBlue(colour) }) >= least;
        }
    }
    return count;
}

QImage pictureOf(QWidget &widget, double scale)
{
    QPixmap picture((QSizeF(widget.size()) * scale).toSize());
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::magenta);
    widget.render(&picture);
    return picture.toImage().convertToFormat(QImage::Format_RGB32);
}

class Looks : public testing::Test {
protected:
    Looks() { window.resize(200, 100); }

    // The control's pictures with the focus and without.
    std::pair<QImage, QImage> withFocusAndWithout(QWidget &control)
    {
        QPushButton other(&window);
        other.setGeometry(0, 80, 10, 10);
        other.show();
        drive::show(window);
        control.setFocus();
        QImage with = control.grab().toImage();
        other.setFocus();
        return { with, control.grab().toImage() };
    }

    QWidget window;
};

} // namespace

TEST(Colours, OfLettersAndTheirGroundsStandFarEnoughApart)
{
    using P = QPalette;
    expectReadable("controls", controlColours(),
        { { P::WindowText, P::Window }, { P::Text, P::Base }, { P::Text, P::AlternateBase },
            { P::HighlightedText, P::Highlight }, { P::ButtonText, P::Button },
            { P::ButtonText, P::Midlight }, { P::ButtonText, P::Mid }, { P::ButtonText, P::Shadow },
            { P::BrightText, P::Button }, { P::BrightText, P::Shadow }, { P::BrightText, P::Highlight },
            { P::ToolTipText, P::ToolTipBase }, { P::PlaceholderText, P::Base }, { P::Link, P::Window },
            { P::LinkVisited, P::Window } });
    expectReadable("popups", popupColours(),
        { { P::WindowText, P::Window }, { P::Text, P::Base }, { P::HighlightedText, P::Highlight },
            { P::ToolTipText, P::ToolTipBase } });
    expectReadable("marks", markColours(),
        { { P::WindowText, P::Window }, { P::Text, P::Base }, { P::Text, P::Highlight },
            { P::BrightText, P::Base } });
}

TEST(Colours, OfHintsAndFaultsCanBeReadAndToldFromAText)
{
    const QColor paper = controlColours().color(QPalette::Base);
    const QColor ink = forms::inkColour();
    const QColor hint = controlColours().color(QPalette::PlaceholderText);
    const QColor fault = forms::faultColour();
    for (const QColor &letters : { ink, hint, fault })
        EXPECT_GE(contrast(letters, paper), 4.5) << letters.name().toStdString();
    EXPECT_GE(contrast(hint, ink), 3);
    EXPECT_GE(contrast(fault, ink), 3);
    EXPECT_GE(fault.hslSaturation() - hint.hslSaturation(), 200);
}

TEST(Colours, OfTheFocusOnAListStandFarFromItsGround)
{
    for (int part = 0; part < 256; ++part) {
        for (const QColor &ground :
            { QColor(part, part, part), QColor(part, 0, 64), QColor(0, part, part), QColor(0, 0, part) })
            EXPECT_GE(contrast(forms::dotsOn(ground), ground), 4.5) << ground.name().toStdString();
    }
    EXPECT_EQ(forms::dotsOn(controlColours().color(QPalette::Base)), QColor(Qt::black));
    for (const auto role : { QPalette::Base, QPalette::Highlight })
        EXPECT_EQ(forms::dotsOn(popupColours().color(role)), QColor(Qt::white));
}

TEST(Colours, OfWhatIsDisabledAreTheProgramsToo)
{
    for (const QPalette &palette : { controlColours(), popupColours(), markColours() }) {
        for (const auto role : { QPalette::WindowText, QPalette::ButtonText, QPalette::Text, QPalette::Button,
                 QPalette::Midlight, QPalette::Mid, QPalette::Dark, QPalette::Light, QPalette::Highlight }) {
            const QColor colour = palette.color(QPalette::Disabled, role);
            EXPECT_GT(colour.blue(), colour.red() + 40) << role;
        }
    }
}

TEST(Colours, OfPopupsAndMarksAreThoseOfTheProgram)
{
    QMenu menu;
    menu.ensurePolished();
    EXPECT_EQ(menu.palette().color(QPalette::Window), popupColours().color(QPalette::Window));
    EXPECT_EQ(menu.palette().color(QPalette::WindowText), popupColours().color(QPalette::WindowText));
    QCheckBox check;
    check.ensurePolished();
    EXPECT_EQ(check.palette().color(QPalette::Base), markColours().color(QPalette::Base));
    EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipBase), popupColours().color(QPalette::ToolTipBase));
}

TEST(Pieces, HaveSharpEdgesAtEveryScale)
{
    for (const double scale : Scales) {
        SCOPED_TRACE(scale);
        const int line = std::max(1, qRound(scale));
        const QRect place(2, 2, 51, 23);
        const QImage sunk = pictureAt(
            scale, [&](QPainter &painter) { forms::drawSunk(painter, place, Qt::cyan, Qt::black); });
        const int top = qRound(7 * scale);
        const int bottom = qRound(30 * scale);
        const Runs expected { { qRgb(255, 0, 255), top }, { qRgb(0, 255, 255), line },
            { qRgb(0, 0, 0), bottom - top - 2 * line }, { qRgb(0, 255, 255), line },
            { qRgb(255, 0, 255), sunk.height() - bottom } };
        EXPECT_EQ(runsDown(sunk, sunk.width() / 3), expected);

        const QImage framed =
            pictureAt(scale, [&](QPainter &painter) { forms::drawFrame(painter, place, Qt::cyan); });
        const Runs open { { qRgb(255, 0, 255), top }, { qRgb(0, 255, 255), line },
            { qRgb(255, 0, 255), bottom - top - 2 * line }, { qRgb(0, 255, 255), line },
            { qRgb(255, 0, 255), framed.height() - bottom } };
        EXPECT_EQ(runsDown(framed, framed.width() / 3), open);
    }
}

TEST(Pieces, DotsOfTheFocusAreWhiteAndEven_AtEveryScale)
{
    for (const double scale : Scales) {
        SCOPED_TRACE(scale);
        const int line = std::max(1, qRound(scale));
        const QImage picture = pictureAt(scale, [](QPainter &painter) {
            forms::drawDots(painter, { 2, 2, 51, 23 }, Qt::white);
        });
        Runs dots;
        for (int x = 0; dots.size() < 8 && x < picture.width(); ++x)
            dots = runsDown(picture, x);
        ASSERT_GE(dots.size(), 8U);
        // But for what lies around them, and the last, which may meet the corner.
        for (size_t i = 1; i + 3 < dots.size(); ++i) {
            EXPECT_EQ(dots[i].first, i % 2 ? qRgb(255, 255, 255) : qRgb(255, 0, 255)) << i;
            EXPECT_EQ(dots[i].second, line) << i;
        }
    }
}

TEST_F(Looks, OfWhatHasTheFocusAreDotsInWhite)
{
    forms::ComboBox combo(&window);
    combo.setGeometry(3, 3, 129, 22);
    forms::CommandButton button(&window);
    button.setGeometry(3, 30, 65, 20);
    forms::CheckBox wide(&window);
    wide.setGeometry(80, 30, 90, 17);
    wide.setText(u"A word"_s);
    forms::CheckBox narrow(&window); // its word has no room
    narrow.setGeometry(3, 55, 13, 17);
    narrow.setText(u"DB"_s);
    forms::OptionButton option(&window);
    option.setGeometry(80, 55, 17, 17);
    for (QWidget *control : std::initializer_list<QWidget *> { &combo, &button, &wide, &narrow, &option }) {
        const auto [with, without] = withFocusAndWithout(*control);
        EXPECT_EQ(whites(without), 0) << control->metaObject()->className();
        constexpr int Smooth = 180; // the ring's dots are
        EXPECT_GE(whites(with, control == &option ? Smooth : 255), control == &option ? 8 : 20)
            << control->metaObject()->className();
        EXPECT_NE(with, without);
    }
}

TEST_F(Looks, OfAListWithTheFocusAreABrighterFrame_AlsoWhereItIsEmpty)
{
    forms::TextBox box(&window);
    box.setGeometry(3, 3, 100, 19);
    const auto [with, without] = withFocusAndWithout(box);
    EXPECT_EQ(QColor(with.pixel(50, 0)), controlColours().color(QPalette::Link));
    EXPECT_EQ(QColor(without.pixel(50, 0)), controlColours().color(QPalette::Dark));
}

TEST_F(Looks, DontChangeUnderThePointer_AndDoWhilePressed)
{
    forms::CommandButton button(&window);
    button.setGeometry(3, 3, 65, 20);
    forms::ComboBox combo(&window);
    combo.setGeometry(3, 30, 129, 22);
    forms::CheckBox check(&window);
    check.setGeometry(80, 3, 17, 17);
    drive::show(window);
    for (QWidget *control : std::initializer_list<QWidget *> { &button, &combo, &check }) {
        EXPECT_FALSE(control->testAttribute(Qt::WA_Hover)) << control->metaObject()->className();
        drive::moveTo(window, { 190, 90 });
        const QImage away = control->grab().toImage();
        drive::moveTo(*control, control->rect().center());
        EXPECT_EQ(control->grab().toImage(), away) << control->metaObject()->className();
    }
    for (QAbstractButton *control : std::initializer_list<QAbstractButton *> { &button, &check }) {
        const QImage atRest = control->grab().toImage();
        control->setDown(true);
        EXPECT_NE(control->grab().toImage(), atRest) << control->metaObject()->className();
        control->setDown(false);
    }
}

TEST_F(Looks, OfACheckBoxWithColoursOfItsOwnAreThose)
{
    forms::CheckBox check(&window);
    check.setGeometry(3, 3, 13, 17);
    QPalette colours = check.palette();
    colours.setColor(QPalette::Base, Qt::black);
    colours.setColor(QPalette::Text, Qt::white);
    check.setPalette(colours);
    drive::show(window);
    check.clearFocus();
    EXPECT_EQ(check.grab().toImage().pixel(6, 8), qRgb(0, 0, 0));
    EXPECT_EQ(whites(check.grab().toImage()), 0);
    check.SetValue(1);
    EXPECT_GT(whites(check.grab().toImage()), 3);
    // It is a square, and what lies below the control shows above and below it.
    EXPECT_EQ(QColor(check.grab().toImage().pixel(6, 0)), window.palette().color(QPalette::Window));
}

TEST_F(Looks, OfAnOpenListAreThoseOfAMenu)
{
    forms::ComboBox combo(&window);
    combo.setGeometry(3, 3, 129, 22);
    combo.AddItem(u"One"_s);
    combo.AddItem(u"Two"_s);
    drive::show(window);
    combo.showPopup();
    const QPalette around = combo.view()->window()->palette();
    EXPECT_EQ(around.color(QPalette::Window), popupColours().color(QPalette::Base));
    const QImage list = combo.view()->viewport()->grab().toImage();
    combo.hidePopup();
    EXPECT_EQ(QColor(list.pixel(list.width() - 3, list.height() - 3)), popupColours().color(QPalette::Base));
}

TEST(Frames, BetweenTheLineAndWhatItFramesNothingOfTheScreenShows)
{
    forms::Form form(u"Form"_s, 3000, 2250, forms::Form::Border::None);
    form.SetBackColour(Qt::magenta);
    forms::ListBox list(&form);
    forms::TextArea text(&form);
    for (QAbstractScrollArea *framed : std::initializer_list<QAbstractScrollArea *> { &list, &text }) {
        const QRgb edge = framed->palette().color(QPalette::Dark).rgb();
        const QRgb paper = framed->palette().color(QPalette::Base).rgb();
        list.hide();
        text.hide();
        framed->show();
        for (const double scale : { 1.0, 1.1, 1.25, 1.33, 1.5, 1.75, 2.0, 2.25, 2.5, 3.0 }) {
            for (int at = 7; at < 11; ++at) {
                framed->setGeometry(at, at, 121, 104 + at);
                const QImage picture = pictureOf(form, scale);
                for (const QImage &each : { picture, picture.transformed(QTransform().rotate(90)) }) {
                    QList<QRgb> met;
                    for (const auto &[colour, length] : runsDown(each, each.width() / 2))
                        met << colour;
                    EXPECT_EQ(met, QList({ qRgb(255, 0, 255), edge, paper, edge, qRgb(255, 0, 255) }))
                        << scale << ' ' << at;
                }
            }
        }
    }
}

TEST(Frames, OfAShapeAreAsThickOnAllSidesAtEveryScale)
{
    forms::Form form(u"Form"_s, 3000, 2250, forms::Form::Border::None);
    form.SetBackColour(Qt::magenta);
    forms::Shape shape(Qt::cyan, &form);
    for (const double scale : Scales) {
        const int line = std::max(1, qRound(scale));
        for (int at = 7; at < 11; ++at) {
            shape.setGeometry(at, at, 121, 84 + at);
            const QImage picture = pictureOf(form, scale);
            for (const QImage &each : { picture, picture.transformed(QTransform().rotate(90)) }) {
                QList<int> lines;
                for (const auto &[colour, length] : runsDown(each, each.width() / 2)) {
                    if (colour != qRgb(255, 0, 255))
                        lines << (colour == qRgb(0, 255, 255) ? length : -1);
                }
                EXPECT_EQ(lines, QList({ line, line })) << scale << ' ' << at;
            }
        }
    }
}

TEST(MessageIcons, AreDrawnForTheScaleOfTheScreen)
{
    for (const auto sign : { forms::MessageSign::Question, forms::MessageSign::Information,
             forms::MessageSign::Warning, forms::MessageSign::Failure }) {
        const QIcon icon = forms::messageIcon(sign);
        const QImage once = icon.pixmap({ 48, 48 }, 1.0).toImage();
        const QImage twice = icon.pixmap({ 48, 48 }, 2.0).toImage();
        ASSERT_EQ(once.size(), QSize(48, 48));
        ASSERT_EQ(twice.size(), QSize(96, 96));
        const QImage large = once.scaled(96, 96);
        EXPECT_NE(twice.convertToFormat(QImage::Format_RGB32), large.convertToFormat(QImage::Format_RGB32));
        EXPECT_EQ(twice.pixelColor(0, 0).alpha(), 0);
        EXPECT_GT(twice.pixelColor(48, 80).alpha(), 250);
    }
}

TEST(MessageIcons, StandInTheSystemBoxes_AndTheirButtonsHaveNone)
{
    QMessageBox box(QMessageBox::Question, u"Title"_s, u"Text"_s, QMessageBox::Yes | QMessageBox::No);
    const QSize size = box.iconPixmap().deviceIndependentSize().toSize();
    const QImage ours = forms::messageIcon(forms::MessageSign::Question).pixmap(size).toImage();
    EXPECT_EQ(box.iconPixmap().toImage(), ours);
    EXPECT_TRUE(box.button(QMessageBox::Yes)->icon().isNull());
}
