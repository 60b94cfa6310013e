#include "forms/application.h"

#include "forms/comboaccess.h"
#include "forms/guard.h"
#include "forms/units.h"

#include <QPalette>
#include <QProxyStyle>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

class Style final : public QProxyStyle {
public:
    Style()
        : QProxyStyle(u"fusion"_s)
    {
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
        QStyleHintReturn *returned) const override
    {
        // A drop-down list drops down, and doesn't lay itself over the control as a menu.
        if (hint == SH_ComboBox_Popup)
            return 0;
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

// All of it, so that nothing of the desktop's theme shows through.
QPalette ownPalette()
{
    const QColor face(212, 212, 208);
    const QColor grey(128, 128, 128);
    const QColor paper = colourFromNumber(0x80000005);
    const QColor ink = colourFromNumber(0x80000012);
    const QColor marked(0, 64, 128);

    QPalette palette(ink, face, Qt::white, grey, QColor(160, 160, 160), ink, Qt::white, paper, face);
    palette.setColor(QPalette::Button, face);
    palette.setColor(QPalette::Midlight, face.lighter(110));
    palette.setColor(QPalette::Shadow, QColor(64, 64, 64));
    palette.setColor(QPalette::AlternateBase, paper);
    palette.setColor(QPalette::Highlight, marked);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(255, 255, 192));
    palette.setColor(QPalette::ToolTipText, ink);
    palette.setColor(QPalette::PlaceholderText, grey);
    palette.setColor(QPalette::Link, marked);
    palette.setColor(QPalette::LinkVisited, marked);
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText })
        palette.setColor(QPalette::Disabled, role, grey);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, grey);
    return palette;
}

} // namespace

Application::Application(int &argc, char **argv)
    : QApplication(argc, argv)
{
    setLook(*this);
    TellAssistantsOfCombos();
    setQuitOnLastWindowClosed(false);
}

bool Application::notify(QObject *receiver, QEvent *event)
{
    bool taken = false;
    auto deliver = [&] { taken = QApplication::notify(receiver, event); };
    guarded(std::ref(deliver));
    return taken;
}

void setLook(QApplication &application)
{
    Q_UNUSED(application)
    QApplication::setStyle(new Style);
    QApplication::setPalette(ownPalette());
    QApplication::setFont(arial(8.25));
}

} // namespace forms
