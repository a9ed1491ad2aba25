#include <kes/qt/gui/widgets/progress.h>

#include <kes/qt/translation/manager.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <QVector>

#include <algorithm>

namespace kes::qt::gui::widgets {

namespace {

constexpr int frameCount = 12;
constexpr int frameInterval = 100;

// Shared by every indicator of the process, loaded by the first one.
const QVector<QPixmap>& frames()
{
    static QVector<QPixmap> table;
    if (table.isEmpty()) {
        for (int i = 0; i < frameCount; ++i)
            table << QPixmap(QStringLiteral(":/kes_qt/icons/progress%1.png").arg(i));
    }
    return table;
}

QHBoxLayout* centred(QWidget* widget)
{
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(widget);
    row->addStretch();
    return row;
}

} // namespace

class ProgressPrivate
{
public:
    QLabel* iconLabel = nullptr;
    QLabel* titleLabel = nullptr;
    QTimer* timer = nullptr;
    int frame = 0;
    QPushButton* cancelButton = nullptr;
};

Progress::Progress(QWidget* parent, bool showCancelButton, const QString& title)
    : QWidget(parent)
    , d(std::make_unique<ProgressPrivate>())
{
    d->iconLabel = new QLabel(this);
    d->iconLabel->setObjectName(QStringLiteral("icon"));
    d->iconLabel->setPixmap(frames().at(0));
    d->titleLabel = new QLabel(title, this);
    d->titleLabel->setObjectName(QStringLiteral("title"));
    d->timer = new QTimer(this);
    d->timer->setObjectName(QStringLiteral("timer"));
    d->timer->setInterval(frameInterval);
    connect(d->timer, SIGNAL(timeout()), this, SLOT(on_timer_timeout()));

    auto* layout = new QVBoxLayout(this);
    layout->addStretch();
    layout->addLayout(centred(d->titleLabel));
    layout->addLayout(centred(d->iconLabel));
    layout->addStretch();
    if (showCancelButton) {
        d->cancelButton = new QPushButton(this);
        d->cancelButton->setObjectName(QStringLiteral("cancel"));
        connect(d->cancelButton, SIGNAL(clicked()), this, SLOT(on_cancel_clicked()));
        layout->addLayout(centred(d->cancelButton));
        layout->addStretch();
    }

    connect(&kes::qt::translation::Manager::singleton(), SIGNAL(languageChanged()), this, SLOT(translate()));
    translate();
}

Progress::~Progress() = default;

QString Progress::title() const
{
    return d->titleLabel->text();
}

void Progress::setTitle(const QString& title)
{
    d->titleLabel->setText(title);
}

void Progress::on_timer_timeout()
{
    d->frame = (d->frame + 1) % frameCount;
    d->iconLabel->setPixmap(frames().at(d->frame));
}

void Progress::on_cancel_clicked()
{
    d->timer->stop();
    Q_EMIT cancel();
}

void Progress::translate()
{
    if (d->cancelButton) {
        d->cancelButton->setText(tr("Cancel"));
        // 80 pixels, unless a translation needs more.
        d->cancelButton->setFixedWidth(std::max(80, d->cancelButton->sizeHint().width()));
    }
}

void Progress::showEvent(QShowEvent* event)
{
    d->timer->start();
    QWidget::showEvent(event);
}

void Progress::hideEvent(QHideEvent* event)
{
    d->timer->stop();
    QWidget::hideEvent(event);
}

} // namespace kes::qt::gui::widgets
