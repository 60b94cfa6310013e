#include "forms/colours.h"

#include "forms/units.h"

#include <QApplication>
#include <QToolTip>

#include <cmath>

namespace forms {

namespace {

constexpr QRgb Night = qRgb(0, 0, 64); // the ground of the screens
constexpr QRgb Well = qRgb(6, 11, 34);
constexpr QRgb Panel = qRgb(13, 20, 52);
constexpr QRgb ButtonFace = qRgb(49, 65, 132);
constexpr QRgb FaceTop = qRgb(74, 93, 166);
constexpr QRgb FaceBottom = qRgb(39, 52, 108);
constexpr QRgb LitEdge = qRgb(157, 178, 240);
constexpr QRgb Teal = qRgb(0, 128, 128);
constexpr QRgb DeepTeal = qRgb(0, 100, 108);
constexpr QRgb BrightTeal = qRgb(48, 200, 200);
constexpr QRgb Green = qRgb(192, 255, 192);
constexpr QRgb Cyan = qRgb(192, 255, 255);

// Of what is disabled.
constexpr QRgb DimFace = qRgb(30, 42, 92);
constexpr QRgb DimEdge = qRgb(74, 93, 166);
constexpr QRgb DimLetters = qRgb(143, 162, 216);

constexpr QRgb DimInk = qRgb(84, 98, 150); // on paper

constexpr QRgb Grey = qRgb(104, 104, 112); // on paper
constexpr QRgb Red = qRgb(192, 0, 0); // on paper

void dim(QPalette &palette)
{
    const auto set = [&palette](QPalette::ColorRole role, QRgb colour) {
        palette.setColor(QPalette::Disabled, role, QColor(colour));
    };
    for (const auto role : { QPalette::Button, QPalette::Midlight, QPalette::Mid })
        set(role, DimFace);
    for (const auto role : { QPalette::Light, QPalette::Dark })
        set(role, DimEdge);
    for (const auto role : { QPalette::WindowText, QPalette::ButtonText })
        set(role, DimLetters);
    set(QPalette::Text, DimInk);
    set(QPalette::Highlight, DimEdge);
}

} // namespace

QPalette controlColours()
{
    const QColor paper = colourFromNumber(0x80000005);
    const QColor ink = inkColour();
    QPalette palette(QColor(Cyan), QColor(ButtonFace), QColor(LitEdge), QColor(Teal), QColor(FaceBottom), ink,
        Qt::white, paper, QColor(Night));
    const auto set = [&palette](
                         QPalette::ColorRole role, QRgb colour) { palette.setColor(role, QColor(colour)); };
    set(QPalette::Midlight, FaceTop);
    set(QPalette::Shadow, Well);
    set(QPalette::ButtonText, Green);
    palette.setColor(QPalette::AlternateBase, paper);
    set(QPalette::Highlight, DeepTeal);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    set(QPalette::ToolTipBase, Panel);
    set(QPalette::ToolTipText, Green);
    set(QPalette::PlaceholderText, Grey);
    set(QPalette::Link, BrightTeal);
    set(QPalette::LinkVisited, BrightTeal);
    dim(palette);
    return palette;
}

QPalette popupColours()
{
    QPalette palette = controlColours();
    for (const auto role : { QPalette::Window, QPalette::Base, QPalette::AlternateBase })
        palette.setColor(role, QColor(Panel));
    for (const auto role : { QPalette::WindowText, QPalette::Text }) {
        palette.setColor(role, QColor(Green));
        palette.setColor(QPalette::Disabled, role, QColor(DimLetters));
    }
    return palette;
}

QPalette markColours()
{
    QPalette palette = controlColours();
    palette.setColor(QPalette::Base, QColor(Well));
    for (const auto role : { QPalette::Base, QPalette::Highlight })
        palette.setColor(QPalette::Disabled, role, QColor(DimFace));
    palette.setColor(QPalette::Text, QColor(Green));
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(DimLetters));
    return palette;
}

QColor inkColour()
{
    return colourFromNumber(0x80000012);
}

QColor faultColour()
{
    return QColor(Red);
}

QColor dotsOn(const QColor &ground)
{
    // As bright as this it stands as far from white as from black.
    constexpr double Middle = 0.179;
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    const double bright =
        0.2126 * linear(ground.redF()) + 0.7152 * linear(ground.greenF()) + 0.0722 * linear(ground.blueF());
    return bright > Middle ? Qt::black : Qt::white;
}

void setColours()
{
    QApplication::setPalette(controlColours());
    QApplication::setPalette(popupColours(), "QMenu");
    QApplication::setPalette(popupColours(), "QComboBoxListView");
    QApplication::setPalette(popupColours(), "QComboBoxPrivateContainer"); // its window
    QApplication::setPalette(markColours(), "QCheckBox");
    QApplication::setPalette(markColours(), "QRadioButton");
    QToolTip::setPalette(popupColours());
}

} // namespace forms
