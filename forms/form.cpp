#include "forms/form.h"

#include "forms/control.h"
#include "forms/ownedge.h"
#include "forms/picturebutton.h"
#include "forms/pictures.h"
#include "forms/plaintext.h"
#include "forms/sharp.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace forms {

struct Form::State {
    Border border;
    QString caption;
    QPixmap tile;
    int tileWidth = 0; // twips
    int tileHeight = 0; // twips
    QString background;
    QEventLoop *modalLoop = nullptr;
};

namespace {

// A form's own edges in twips, as its outer measures count them.
constexpr int FrameWidth = 90;
constexpr int FrameHeight = 375;

void stackOver(QWidget &form, QWidget *lower)
{
    // Only dialogs are kept over another window by window managers.
    const Qt::WindowType type = lower ? Qt::Dialog : Qt::Window;
    if (form.windowType() != type)
        form.setWindowFlags((form.windowFlags() & ~Qt::WindowType_Mask) | type);
    form.winId();
    if (lower)
        lower->window()->winId();
    form.windowHandle()->setTransientParent(lower ? lower->window()->windowHandle() : nullptr);
}

// Wayland tells no program where its windows stand: places count from the owner's corner, wherever that is,
// and the compositor itself keeps what it places on the screen.
bool knowsPlaces()
{
    return !QGuiApplication::platformName().startsWith(u"wayland");
}

// In the middle of the owner's client area, or of the screen, and wholly on the screen where it has room.
void centre(QWidget &form, const QWidget *owner)
{
    const QScreen *screen = owner ? owner->screen() : QApplication::primaryScreen();
    const QRect free = screen->availableGeometry();
    QRect place(QPoint(0, 0), form.size());
    // Not by its geometry, which stays what was once asked for.
    const QWidget *lower = owner ? owner->window() : nullptr;
    place.moveCenter(lower ? lower->mapToGlobal(lower->rect().center()) : free.center());
    if (knowsPlaces()) {
        place.moveRight(std::min(place.right(), free.right()));
        place.moveBottom(std::min(place.bottom(), free.bottom()));
        place.moveLeft(std::max(place.left(), free.left()));
        place.moveTop(std::max(place.top(), free.top()));
    }
    form.setGeometry(place);
}

Qt::WindowFlags flagsOf(Form::Border border)
{
    switch (border) {
    case Form::Border::None:
        return Qt::Window | Qt::FramelessWindowHint;
    case Form::Border::FixedWithCloseBox:
        return Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
            | Qt::WindowCloseButtonHint;
    case Form::Border::FixedSingle:
        break;
    }
    return Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
}

// Returns the window that the form stands over.
QPointer<QWidget> showOver(QWidget &form, QWidget *owner, Qt::WindowModality modality)
{
    QWidget *lower = QApplication::activeModalWidget();
    if (!lower || lower == &form)
        lower = owner ? owner : QApplication::activeWindow();
    if (lower && lower->window() == &form)
        lower = nullptr;
    form.setWindowModality(modality);
    stackOver(form, lower);
    centre(form, owner);
    form.show();
    form.raise();
    form.activateWindow();
    return lower;
}

} // namespace

Form::Form(const QString &name, int clientWidth, int clientHeight, Border border)
    : m_state(std::make_unique<State>())
{
    m_state->border = border;
    setObjectName(name);
    setWindowFlags(flagsOf(border));
    setMouseTracking(true);
    SetClientSize(clientWidth, clientHeight);
}

Form::~Form()
{
    if (m_state->modalLoop)
        m_state->modalLoop->quit();
}

QString Form::Caption() const
{
    return m_state->caption;
}

void Form::SetCaption(const QString &caption)
{
    m_state->caption = caption;
    setWindowTitle(asTitle(caption));
}

void Form::SetOuterHeight(int height)
{
    setFixedHeight(pixels(height - FrameHeight));
}

void Form::SetOuterWidth(int width)
{
    setFixedWidth(pixels(width - FrameWidth));
}

void Form::SetClientSize(int width, int height)
{
    setFixedSize(pixels(width), pixels(height));
}

void Form::ShowModal(QWidget *owner)
{
    if (m_state->modalLoop) {
        showOver(*this, owner, Qt::ApplicationModal);
        return;
    }
    QEventLoop loop;
    const QPointer<Form> self(this);
    const auto closed = qScopeGuard([self] {
        if (self) {
            self->m_state->modalLoop = nullptr;
            self->hide();
        }
    });
    hide();
    m_state->modalLoop = &loop;
    const QPointer<QWidget> lower = showOver(*this, owner, Qt::ApplicationModal);
    // What showing it has raised may have closed it already; and it may have been shown again by the time
    // that the loop ends.
    while (self && isVisible() && loop.exec() == 0) { }
    // Not every window system gives the focus back. Where the user has gone on to another program, it stays
    // there.
    if (lower && lower->isVisible() && QApplication::applicationState() == Qt::ApplicationActive)
        lower->activateWindow();
}

void Form::ShowModeless(QWidget *owner)
{
    showOver(*this, owner, Qt::NonModal);
}

void Form::ShowAside(QWidget &owner)
{
    if (windowType() != Qt::ToolTip) {
        setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint);
        setAttribute(Qt::WA_ShowWithoutActivating);
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    winId();
    owner.window()->winId();
    windowHandle()->setTransientParent(owner.window()->windowHandle());
    centre(*this, &owner);
    show();
    raise();
}

void Form::Unload()
{
    hide();
}

void Form::SetBackColour(const QColor &colour)
{
    QPalette colours = palette();
    colours.setColor(QPalette::Window, colour);
    setPalette(colours);
}

void Form::SetTile(const QPixmap &tile, int width, int height)
{
    m_state->tile = tile;
    m_state->tileWidth = width;
    m_state->tileHeight = height;
    update();
}

void Form::SetBackground(const QString &artworkName)
{
    m_state->background = artworkName;
    update();
}

QWidget *Form::Control(const QString &name) const
{
    if (auto *control = findChild<QWidget *>(name))
        return control;
    const auto pairs = findChildren<QWidget *>();
    for (QWidget *control : pairs) {
        const auto *pair = dynamic_cast<const PictureButton *>(control);
        if (pair && pair->PressedName() == name)
            return control;
    }
    return nullptr;
}

bool Form::event(QEvent *event)
{
    // Taken, the key goes on as a plain one.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent *>(event)->isAutoRepeat()) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void Form::closeEvent(QCloseEvent *event)
{
    if (CloseWished.hasHandler()) {
        event->ignore();
        CloseWished.raise();
        return;
    }
    event->setAccepted(m_state->border != Border::None);
}

void Form::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (m_state->modalLoop && !event->spontaneous())
        m_state->modalLoop->quit();
}

void Form::keyPressEvent(QKeyEvent *event)
{
    if (keyCodeOf(*event) != EnterKey || !KeyEnter.hasHandler()) {
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept();
    if (!event->isAutoRepeat())
        KeyEnter.raise();
}

void Form::mouseMoveEvent(QMouseEvent *event)
{
    event->accept();
    MouseMove.raise(heldMouseOf(*event));
}

void Form::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    if (!m_state->background.isEmpty())
        drawPart(painter, event->region(), artwork(m_state->background, size(), devicePixelRatioF()));
    if (!m_state->tile.isNull() && m_state->tileWidth > 0 && m_state->tileHeight > 0)
        paintTile(painter);
    if (m_state->border != Border::None)
        drawOwnEdge(painter, *this);
}

void Form::paintTile(QPainter &painter) const
{
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (int y = 0; y <= twips(height()); y += m_state->tileHeight) {
        for (int x = 0; x <= twips(width()); x += m_state->tileWidth)
            painter.drawPixmap(inPixels({ x, y, m_state->tileWidth, m_state->tileHeight }), m_state->tile);
    }
}

} // namespace forms
