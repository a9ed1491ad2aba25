#include <kes/qt/gui/widgets/balloontooltip.h>

#include <kes/qt/translation/manager.h>

#include <QAction>
#include <QBitmap>
#include <QColor>
#include <QEvent>
#include <QFont>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPointer>
#include <QScreen>
#include <QSpacerItem>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace kes::qt::gui::widgets {

namespace {

enum FadeState { Hidden = 0, FadingIn = 1, FadingOut = 2, Shown = 3 };

constexpr double fadeStep = BalloonToolTip::_opacity * BalloonToolTip::_timerIntervall / BalloonToolTip::_fadeTime;
// Sums of fade steps are not exact in binary; without a little slack a fade could take an 11th tick.
constexpr double fadeSlack = 1e-9;
constexpr int tipHeight = int(BalloonToolTip::_triangleSize);
// Distance of the tip from the near side of the balloon.
constexpr int tipInset = 30;
constexpr int contentMargin = 8;

const QColor fillColor(255, 255, 225);
const QColor outlineColor(118, 118, 118);

bool isBelow(BalloonToolTip::Orientation orientation)
{
    return orientation == BalloonToolTip::BelowLeft || orientation == BalloonToolTip::BelowRight;
}

bool isLeft(BalloonToolTip::Orientation orientation)
{
    return orientation == BalloonToolTip::AboveLeft || orientation == BalloonToolTip::BelowLeft;
}

} // namespace

class BalloonToolTipPrivate
{
public:
    QPointer<QWidget> target;
    // The target's window, watched as well: moving the window moves the target on the screen
    // without a move event for the target itself.
    QPointer<QWidget> targetWindow;
    QPoint pos;
    BalloonToolTip::MessageType type = BalloonToolTip::Information;
    BalloonToolTip::Orientation orientation = BalloonToolTip::Automatic;
    BalloonToolTip::OrientationPolicy policy = BalloonToolTip::AdjustOrientation;
    QPainterPath path;
    FadeState fadeState = Hidden;
    int fadeTimer = 0;
    int autoHideTimer = 0;
    bool autoHide = true;
    int autoHideTime = 10000;
    bool hideOnClick = true;
    bool showCloseButton = true;
    bool hovered = false;
    double opacity = 0.0;
    // Where the tip lies: its x in the balloon and whether it is on the top edge.
    int tipX = tipInset;
    bool tipOnTop = false;

    QLabel* iconLabel = nullptr;
    QLabel* titleLabel = nullptr;
    QLabel* textLabel = nullptr;
    QToolButton* closeButton = nullptr;
    QAction* closeAction = nullptr;
    QSpacerItem* topSpacer = nullptr;
    QVBoxLayout* layout = nullptr;

    QPoint globalTarget() const { return target ? target->mapToGlobal(pos) : pos; }

    void killTimer(QObject* owner, int& id)
    {
        if (id != 0)
            owner->killTimer(id);
        id = 0;
    }
};

BalloonToolTip::BalloonToolTip(QWidget* parent, const QString& title, const QString& text, const QPoint& pos,
                               MessageType type, Orientation orientation, OrientationPolicy policy)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint)
    , d(std::make_unique<BalloonToolTipPrivate>())
{
    d->target = parent;
    d->pos = pos;
    d->type = type;
    d->orientation = orientation;
    d->policy = policy;
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowOpacity(0.0);

    d->iconLabel = new QLabel(this);
    d->iconLabel->setObjectName(QStringLiteral("iconLabel"));
    switch (type) {
    case Information:
        d->iconLabel->setPixmap(QPixmap(QStringLiteral(":/kes_qt/icons/exclamation.png")));
        break;
    case Warning:
        d->iconLabel->setPixmap(QPixmap(QStringLiteral(":/kes_qt/icons/warning.png")));
        break;
    case Critical:
        d->iconLabel->setPixmap(QPixmap(QStringLiteral(":/kes_qt/icons/cancel.png")));
        break;
    case CustomIcon:
        break;
    }

    d->titleLabel = new QLabel(this);
    d->titleLabel->setObjectName(QStringLiteral("titleLabel"));
    d->titleLabel->setTextFormat(Qt::RichText);
    const QColor titleColor = type == Critical ? QColor(165, 0, 0) : QColor(0x00, 0x50, 0x96);
    d->titleLabel->setText(QStringLiteral("<font color='%1'>%2</font>").arg(titleColor.name(), title));
    d->titleLabel->setFont(QFont(QStringLiteral("Arial"), 12));

    d->textLabel = new QLabel(text, this);
    d->textLabel->setObjectName(QStringLiteral("textLabel"));
    d->textLabel->setWordWrap(true);

    d->closeButton = new QToolButton(this);
    d->closeButton->setObjectName(QStringLiteral("closeButton"));
    d->closeButton->setAutoRaise(true);
    d->closeButton->setToolButtonStyle(Qt::ToolButtonIconOnly);
    d->closeAction = new QAction(QIcon(QStringLiteral(":/kes_qt/icons/balloon_cross.png")), QString(), this);
    d->closeButton->setDefaultAction(d->closeAction);
    connect(d->closeButton, SIGNAL(triggered(QAction*)), this, SLOT(onCloseTriggered()));

    // Room for the tip: the top spacer when the tip is on the top edge, the bottom margin when it
    // is on the bottom edge, so that the height does not depend on the side.
    d->layout = new QVBoxLayout(this);
    d->layout->setSpacing(0);
    d->layout->setContentsMargins(contentMargin, contentMargin, contentMargin, contentMargin + tipHeight);
    d->topSpacer = new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Minimum);
    d->layout->addSpacerItem(d->topSpacer);

    auto* columns = new QHBoxLayout;
    auto* iconColumn = new QVBoxLayout;
    iconColumn->addSpacing(2);
    iconColumn->addWidget(d->iconLabel);
    iconColumn->addStretch();
    auto* titleRow = new QHBoxLayout;
    titleRow->addWidget(d->titleLabel);
    titleRow->addStretch();
    titleRow->addWidget(d->closeButton);
    auto* textRow = new QHBoxLayout;
    textRow->addSpacing(2);
    textRow->addWidget(d->textLabel);
    textRow->addSpacing(5);
    auto* contentColumn = new QVBoxLayout;
    contentColumn->addLayout(titleRow);
    contentColumn->addLayout(textRow);
    contentColumn->addSpacing(10);
    contentColumn->addStretch();
    columns->addLayout(iconColumn);
    columns->addLayout(contentColumn, 1);
    d->layout->addLayout(columns);

    if (parent) {
        parent->installEventFilter(this);
        QWidget* window = parent->window();
        if (window != parent) {
            d->targetWindow = window;
            window->installEventFilter(this);
        }
    }

    connect(&kes::qt::translation::Manager::singleton(), SIGNAL(languageChanged()), this, SLOT(translate()));
    translate();
}

BalloonToolTip::~BalloonToolTip() = default;

BalloonToolTip* BalloonToolTip::information(QWidget* parent, const QString& title, const QString& text,
                                            const QPoint& pos)
{
    auto* balloon = new BalloonToolTip(parent, title, text, pos, Information);
    balloon->show();
    return balloon;
}

BalloonToolTip* BalloonToolTip::warning(QWidget* parent, const QString& title, const QString& text,
                                        const QPoint& pos)
{
    auto* balloon = new BalloonToolTip(parent, title, text, pos, Warning);
    balloon->show();
    return balloon;
}

BalloonToolTip* BalloonToolTip::critical(QWidget* parent, const QString& title, const QString& text,
                                         const QPoint& pos)
{
    auto* balloon = new BalloonToolTip(parent, title, text, pos, Critical);
    balloon->show();
    return balloon;
}

QSize BalloonToolTip::sizeHint() const
{
    return QSize(300, 150);
}

bool BalloonToolTip::autoHide() const
{
    return d->autoHide;
}

void BalloonToolTip::setAutoHide(bool autoHide)
{
    d->autoHide = autoHide;
    if (!autoHide)
        d->killTimer(this, d->autoHideTimer);
}

int BalloonToolTip::autoHideTime() const
{
    return d->autoHideTime;
}

void BalloonToolTip::setAutoHideTime(int ms)
{
    d->autoHideTime = std::max(ms, 0);
}

bool BalloonToolTip::hideOnClick() const
{
    return d->hideOnClick;
}

void BalloonToolTip::setHideOnClick(bool hideOnClick)
{
    d->hideOnClick = hideOnClick;
}

bool BalloonToolTip::showCloseButton() const
{
    return d->showCloseButton;
}

void BalloonToolTip::setShowCloseButton(bool show)
{
    d->showCloseButton = show;
    d->closeButton->setVisible(show);
}

void BalloonToolTip::setIcon(const QPixmap& icon)
{
    if (d->type == CustomIcon)
        d->iconLabel->setPixmap(icon);
}

BalloonToolTip::Orientation BalloonToolTip::orientation() const
{
    return d->orientation;
}

void BalloonToolTip::onCloseTriggered()
{
    if (d->fadeState == FadingOut)
        return;
    d->killTimer(this, d->autoHideTimer);
    d->killTimer(this, d->fadeTimer);
    d->fadeState = FadingOut;
    d->fadeTimer = startTimer(_timerIntervall);
}

void BalloonToolTip::translate()
{
    d->closeAction->setText(tr("Close"));
    d->closeAction->setToolTip(tr("Close"));
}

void BalloonToolTip::update()
{
    QWidget::update();
}

bool BalloonToolTip::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Move && watched != this && (watched == d->target || watched == d->targetWindow)) {
        if (isVisible())
            place();
        // The window's own move is still needed by the window; the target's is the balloon's.
        return watched == d->target;
    }
    return QWidget::eventFilter(watched, event);
}

void BalloonToolTip::showEvent(QShowEvent* event)
{
    const QPoint target = d->globalTarget();
    const QSize size = this->size();
    bool below = isBelow(d->orientation);
    bool left = isLeft(d->orientation);
    int tipX = left ? size.width() - 1 - tipInset : tipInset;

    if (d->policy == AdjustOrientation || d->orientation == Automatic) {
        const QScreen* screen = QGuiApplication::screenAt(target);
        if (!screen)
            screen = this->screen();
        const QRect area = screen->availableGeometry();
        const bool fitsAbove = target.y() - (size.height() - 1) >= area.top();
        const bool fitsBelow = target.y() + (size.height() - 1) <= area.bottom();
        if (fitsAbove != fitsBelow)
            below = fitsBelow;
        else if (!fitsAbove)
            below = area.bottom() - target.y() > target.y() - area.top();

        auto fitsFrom = [&](int x) { return x >= area.left() && x + size.width() - 1 <= area.right(); };
        const bool fitsLeft = fitsFrom(target.x() - (size.width() - 1 - tipInset));
        const bool fitsRight = fitsFrom(target.x() - tipInset);
        if (fitsLeft != fitsRight)
            left = fitsLeft;
        tipX = left ? size.width() - 1 - tipInset : tipInset;
        if (!fitsLeft && !fitsRight) {
            // Neither side fits: the balloon slides along its tip as far as the screen asks; the tip
            // leans over to reach the point when that lies beyond the straight part of the edge.
            const int x = std::clamp(target.x() - tipX, area.left(), std::max(area.left(), area.right() - size.width() + 1));
            tipX = std::clamp(target.x() - x, 0, size.width() - 1);
            left = tipX >= size.width() / 2;
        }
    }
    d->orientation = below ? (left ? BelowLeft : BelowRight) : (left ? AboveLeft : AboveRight);
    d->tipOnTop = below;
    d->tipX = tipX;

    if (below) {
        d->topSpacer->changeSize(tipHeight, tipHeight, QSizePolicy::Minimum, QSizePolicy::Minimum);
        d->layout->setContentsMargins(contentMargin, contentMargin, contentMargin, contentMargin);
    } else {
        d->topSpacer->changeSize(0, 0, QSizePolicy::Minimum, QSizePolicy::Minimum);
        d->layout->setContentsMargins(contentMargin, contentMargin, contentMargin, contentMargin + tipHeight);
    }
    d->layout->invalidate();
    d->layout->activate();

    place();
    buildOutline();
    // The path's polygon, as the painter fills and outlines it: a polygon region rounds the
    // half-pixel outline away on two sides and narrows the tip.
    QBitmap mask(size);
    mask.fill(Qt::color0);
    QPainter painter(&mask);
    painter.setPen(QPen(Qt::color1, 1.0));
    painter.setBrush(Qt::color1);
    painter.drawPolygon(d->path.toFillPolygon());
    painter.end();
    setMask(mask);

    d->hovered = false;
    setOpacity(0.0);
    d->killTimer(this, d->fadeTimer);
    d->killTimer(this, d->autoHideTimer);
    d->fadeState = FadingIn;
    d->fadeTimer = startTimer(_timerIntervall);
    if (d->autoHide)
        d->autoHideTimer = startTimer(d->autoHideTime, Qt::CoarseTimer);
    QWidget::showEvent(event);
}

void BalloonToolTip::place()
{
    move(d->globalTarget() - QPoint(d->tipX, d->tipOnTop ? 0 : height() - 1));
}

void BalloonToolTip::buildOutline()
{
    // Half-pixel insets put the one-pixel outline on whole pixels inside the mask.
    const double t = _triangleSize;
    const double r = _cornerRadius;
    const double left = 0.5;
    const double right = width() - 0.5;
    const double top = d->tipOnTop ? t + 0.5 : 0.5;
    const double bottom = d->tipOnTop ? height() - 0.5 : height() - t - 0.5;
    const double tip = d->tipX + 0.5;
    // The base stays on the straight part of the edge; a tip near a corner leans over to its point.
    const double base = std::clamp(tip, left + r + t / 2, right - r - t / 2);

    QPainterPath path;
    path.moveTo(left + r, top);
    if (d->tipOnTop) {
        path.lineTo(base - t / 2, top);
        path.lineTo(tip, top - t);
        path.lineTo(base + t / 2, top);
    }
    path.lineTo(right - r, top);
    path.arcTo(QRectF(right - 2 * r, top, 2 * r, 2 * r), 90, -90);
    path.lineTo(right, bottom - r);
    path.arcTo(QRectF(right - 2 * r, bottom - 2 * r, 2 * r, 2 * r), 0, -90);
    if (!d->tipOnTop) {
        path.lineTo(base + t / 2, bottom);
        path.lineTo(tip, bottom + t);
        path.lineTo(base - t / 2, bottom);
    }
    path.lineTo(left + r, bottom);
    path.arcTo(QRectF(left, bottom - 2 * r, 2 * r, 2 * r), 270, -90);
    path.lineTo(left, top + r);
    path.arcTo(QRectF(left, top, 2 * r, 2 * r), 180, -90);
    path.closeSubpath();
    d->path = path;
}

void BalloonToolTip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(outlineColor, 1.0));
    painter.setBrush(fillColor);
    painter.drawPath(d->path);
}

void BalloonToolTip::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == d->autoHideTimer) {
        onCloseTriggered();
        return;
    }
    if (event->timerId() != d->fadeTimer) {
        QWidget::timerEvent(event);
        return;
    }
    switch (d->fadeState) {
    case FadingIn: {
        const double shown = d->hovered ? 1.0 : _opacity;
        if (d->opacity + fadeStep >= shown - fadeSlack) {
            setOpacity(shown);
            d->fadeState = Shown;
            d->killTimer(this, d->fadeTimer);
        } else {
            setOpacity(d->opacity + fadeStep);
        }
        break;
    }
    case FadingOut:
        if (d->opacity - fadeStep <= fadeSlack) {
            setOpacity(0.0);
            d->fadeState = Hidden;
            d->killTimer(this, d->fadeTimer);
            close();
        } else {
            setOpacity(d->opacity - fadeStep);
        }
        break;
    default:
        d->killTimer(this, d->fadeTimer);
        break;
    }
}

void BalloonToolTip::enterEvent(QEvent* event)
{
    d->hovered = true;
    if (d->fadeState != FadingOut) {
        setOpacity(1.0);
        // A balloon being read does not go away under the pointer.
        d->killTimer(this, d->autoHideTimer);
    }
    QWidget::enterEvent(event);
}

void BalloonToolTip::leaveEvent(QEvent* event)
{
    d->hovered = false;
    if (d->fadeState != FadingOut) {
        setOpacity(_opacity);
        if (d->autoHide) {
            d->killTimer(this, d->autoHideTimer);
            d->autoHideTimer = startTimer(d->autoHideTime, Qt::CoarseTimer);
        }
    }
    QWidget::leaveEvent(event);
}

void BalloonToolTip::mouseReleaseEvent(QMouseEvent* event)
{
    if (d->autoHide)
        d->killTimer(this, d->autoHideTimer);
    if (d->hideOnClick)
        onCloseTriggered();
    Q_EMIT clicked();
    event->accept();
}

void BalloonToolTip::setOpacity(double opacity)
{
    // Kept here as well: the window stores its opacity in steps of 1/255, too coarse to add up.
    d->opacity = opacity;
    setWindowOpacity(opacity);
}

} // namespace kes::qt::gui::widgets
