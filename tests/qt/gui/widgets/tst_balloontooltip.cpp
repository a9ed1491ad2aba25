#include <kes/qt/gui/widgets/balloontooltip.h>

#include "kestest.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPointer>
#include <QScreen>
#include <QToolButton>
#include <QtTest>

#include <functional>

using kes::qt::gui::widgets::BalloonToolTip;

namespace {

// The window opacity before each tick of the fade timer: the steps as the user sees them.
class OpacityRecorder : public QObject
{
public:
    explicit OpacityRecorder(QWidget* balloon)
        : m_balloon(balloon)
    {
        balloon->installEventFilter(this);
    }

    QList<double> values;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Timer)
            values << m_balloon->windowOpacity();
        return false;
    }

private:
    QWidget* m_balloon;
};

// The window stores opacity in steps of 1/255.
void compareOpacities(const QList<double>& actual, const QList<double>& expected)
{
    QCOMPARE(actual.size(), expected.size());
    for (int i = 0; i < actual.size(); ++i) {
        if (qAbs(actual.at(i) - expected.at(i)) > 1.0 / 255 + 1e-9)
            QFAIL(qPrintable(QStringLiteral("step %1: %2 instead of %3").arg(i).arg(actual.at(i)).arg(expected.at(i))));
    }
}

BalloonToolTip* quietBalloon(QWidget* parent = nullptr, const QPoint& pos = QPoint(400, 300))
{
    auto* balloon = new BalloonToolTip(parent, QStringLiteral("Camera"), QStringLiteral("Exposure clipped"), pos);
    balloon->setAutoHide(false);
    return balloon;
}

} // namespace

using Helper = std::function<BalloonToolTip*(QWidget*, const QString&, const QString&, const QPoint&)>;
Q_DECLARE_METATYPE(Helper)

class tst_BalloonToolTip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fadesInAndOutThenDeletesItself()
    {
        QPointer<BalloonToolTip> balloon = quietBalloon();
        OpacityRecorder recorder(balloon);
        balloon->show();
        QTRY_COMPARE(recorder.values.size(), 10);
        QList<double> in;
        for (int i = 0; i < 10; ++i)
            in << 0.09 * i;
        compareOpacities(recorder.values, in);
        QVERIFY(qAbs(balloon->windowOpacity() - 0.9) <= 1.0 / 255);

        recorder.values.clear();
        balloon->onCloseTriggered();
        QTRY_VERIFY(balloon.isNull());
        QList<double> out;
        for (int i = 0; i < 10; ++i)
            out << 0.9 - 0.09 * i;
        compareOpacities(recorder.values, out);
    }

    void hoverHoldsItOpaque()
    {
        QPointer<BalloonToolTip> balloon = quietBalloon();
        balloon->setAutoHide(true);
        balloon->setAutoHideTime(200);
        balloon->show();
        QVERIFY(QTest::qWaitForWindowExposed(balloon));
        QTest::mouseMove(balloon, QPoint(balloon->width() / 2, balloon->height() / 2));
        QTRY_COMPARE(balloon->windowOpacity(), 1.0);
        // Long past the auto-hide time, the pointer still holds it, fade-in or not.
        QTest::qWait(400);
        QVERIFY(balloon);
        QCOMPARE(balloon->windowOpacity(), 1.0);
        // Leaving restarts the delay, after which it fades out.
        QTest::mouseMove(balloon, QPoint(-50, -50));
        QTRY_VERIFY(qAbs(balloon->windowOpacity() - 0.9) <= 1.0 / 255);
        QTRY_VERIFY(balloon.isNull());
    }

    void hides_data()
    {
        QTest::addColumn<bool>("autoHide");
        QTest::addColumn<bool>("hideOnClick");
        QTest::addColumn<bool>("click");
        QTest::addColumn<bool>("gone");
        QTest::newRow("auto hide") << true << false << false << true;
        QTest::newRow("no auto hide") << false << false << false << false;
        QTest::newRow("click hides") << false << true << true << true;
        QTest::newRow("click only reports") << true << false << true << false;
    }

    void hides()
    {
        QFETCH(bool, autoHide);
        QFETCH(bool, hideOnClick);
        QFETCH(bool, click);
        QFETCH(bool, gone);
        QPointer<BalloonToolTip> balloon = quietBalloon();
        balloon->setAutoHide(autoHide);
        // A click stops the delay: long enough for the click to come first.
        balloon->setAutoHideTime(click ? 250 : 50);
        balloon->setHideOnClick(hideOnClick);
        QCOMPARE(balloon->autoHide(), autoHide);
        QCOMPARE(balloon->hideOnClick(), hideOnClick);
        QSignalSpy clicked(balloon.data(), SIGNAL(clicked()));
        balloon->show();
        if (click) {
            QVERIFY(QTest::qWaitForWindowExposed(balloon));
            QTest::mouseClick(balloon, Qt::LeftButton, {}, QPoint(balloon->width() / 2, balloon->height() / 2));
            QCOMPARE(clicked.count(), 1);
        }
        if (gone) {
            QTRY_VERIFY(balloon.isNull());
        } else {
            // Ten times the auto-hide time and more than a whole fade.
            QTest::qWait(500);
            QVERIFY(balloon);
            delete balloon;
        }
    }

    void closeButtonFadesItOut()
    {
        QPointer<BalloonToolTip> balloon = quietBalloon();
        balloon->setHideOnClick(false);
        balloon->show();
        auto* close = balloon->findChild<QToolButton*>(QStringLiteral("closeButton"));
        QVERIFY(close);
        QVERIFY(close->isVisible());
        QTest::mouseClick(close, Qt::LeftButton);
        QTRY_VERIFY(balloon.isNull());

        BalloonToolTip plain(nullptr, QString(), QString(), QPoint());
        plain.setAttribute(Qt::WA_DeleteOnClose, false);
        plain.setShowCloseButton(false);
        QVERIFY(!plain.showCloseButton());
        plain.setAutoHide(false);
        plain.show();
        QVERIFY(!plain.findChild<QToolButton*>(QStringLiteral("closeButton"))->isVisible());
    }

    void helpers_data()
    {
        QTest::addColumn<Helper>("helper");
        QTest::addColumn<QString>("color");
        QTest::newRow("information") << Helper(&BalloonToolTip::information) << QStringLiteral("#005096");
        QTest::newRow("warning") << Helper(&BalloonToolTip::warning) << QStringLiteral("#005096");
        QTest::newRow("critical") << Helper(&BalloonToolTip::critical) << QStringLiteral("#a50000");
    }

    void helpers()
    {
        QFETCH(Helper, helper);
        QFETCH(QString, color);
        QWidget window;
        window.resize(300, 200);
        window.show();
        QPointer<BalloonToolTip> balloon = helper(&window, QStringLiteral("Laser"), QStringLiteral("No echo"), QPoint(150, 100));
        QVERIFY(balloon->isVisible());
        QCOMPARE(balloon->parentWidget(), &window);
        QCOMPARE(balloon->findChild<QLabel*>(QStringLiteral("titleLabel"))->text(),
                 QStringLiteral("<font color='%1'>Laser</font>").arg(color));
        QCOMPARE(balloon->findChild<QLabel*>(QStringLiteral("textLabel"))->text(), QStringLiteral("No echo"));
        QVERIFY(!balloon->findChild<QLabel*>(QStringLiteral("iconLabel"))->pixmap(Qt::ReturnByValue).isNull());
        QCOMPARE(balloon->sizeHint(), QSize(300, 150));
    }

    void customIcon()
    {
        BalloonToolTip information(nullptr, QString(), QString(), QPoint());
        const QPixmap icon(16, 16);
        information.setIcon(icon);
        QVERIFY(information.findChild<QLabel*>(QStringLiteral("iconLabel"))->pixmap(Qt::ReturnByValue).size() != icon.size());
        BalloonToolTip custom(nullptr, QString(), QString(), QPoint(), BalloonToolTip::CustomIcon);
        QVERIFY(custom.findChild<QLabel*>(QStringLiteral("iconLabel"))->pixmap(Qt::ReturnByValue).isNull());
        custom.setIcon(icon);
        QCOMPARE(custom.findChild<QLabel*>(QStringLiteral("iconLabel"))->pixmap(Qt::ReturnByValue).size(), icon.size());
    }

    // The offscreen screen is 800 x 600. The point is given globally (no parent).
    void opensWhereItFits_data()
    {
        QTest::addColumn<QPoint>("point");
        QTest::addColumn<int>("requested");
        QTest::addColumn<int>("policy");
        QTest::addColumn<int>("expected");
        const int fixed = BalloonToolTip::FixedOrientation;
        const int adjust = BalloonToolTip::AdjustOrientation;
        QTest::newRow("middle, automatic") << QPoint(400, 300) << int(BalloonToolTip::Automatic) << adjust
                                           << int(BalloonToolTip::AboveRight);
        QTest::newRow("middle keeps below left") << QPoint(400, 300) << int(BalloonToolTip::BelowLeft) << adjust
                                                 << int(BalloonToolTip::BelowLeft);
        QTest::newRow("top edge flips down") << QPoint(400, 10) << int(BalloonToolTip::AboveLeft) << adjust
                                             << int(BalloonToolTip::BelowLeft);
        QTest::newRow("bottom edge flips up") << QPoint(400, 590) << int(BalloonToolTip::BelowRight) << adjust
                                              << int(BalloonToolTip::AboveRight);
        QTest::newRow("right edge flips left") << QPoint(600, 300) << int(BalloonToolTip::AboveRight) << adjust
                                               << int(BalloonToolTip::AboveLeft);
        QTest::newRow("left edge flips right") << QPoint(200, 300) << int(BalloonToolTip::BelowLeft) << adjust
                                               << int(BalloonToolTip::BelowRight);
        QTest::newRow("at the left edge slides") << QPoint(3, 300) << int(BalloonToolTip::BelowLeft) << adjust
                                                 << int(BalloonToolTip::BelowRight);
        QTest::newRow("top right corner") << QPoint(795, 0) << int(BalloonToolTip::Automatic) << fixed
                                          << int(BalloonToolTip::BelowLeft);
        QTest::newRow("fixed stays off screen") << QPoint(400, 10) << int(BalloonToolTip::AboveRight) << fixed
                                                << int(BalloonToolTip::AboveRight);
    }

    void opensWhereItFits()
    {
        QFETCH(QPoint, point);
        QFETCH(int, requested);
        QFETCH(int, policy);
        QFETCH(int, expected);
        BalloonToolTip balloon(nullptr, QStringLiteral("Scanner"), QStringLiteral("Window dirty"), point,
                               BalloonToolTip::Warning, BalloonToolTip::Orientation(requested),
                               BalloonToolTip::OrientationPolicy(policy));
        balloon.setAttribute(Qt::WA_DeleteOnClose, false);
        balloon.setAutoHide(false);
        balloon.show();
        QCOMPARE(int(balloon.orientation()), expected);

        const QRect frame = balloon.geometry();
        const bool below = expected >= BalloonToolTip::BelowLeft;
        QCOMPARE(below ? frame.top() : frame.bottom(), point.y());
        QVERIFY(frame.left() <= point.x() && point.x() <= frame.right());
        if (policy == BalloonToolTip::AdjustOrientation || requested == BalloonToolTip::Automatic)
            QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(frame));
        // The tip: just inside its point, the balloon is there, beside it not.
        const QPoint tip = balloon.mapFromGlobal(point);
        const QPoint inside = tip + QPoint(tip.x() < balloon.width() / 2 ? 1 : -1, below ? 4 : -4);
        QVERIFY(balloon.mask().contains(inside));
        QVERIFY(!balloon.mask().contains(inside + QPoint(8, 0)));
        QVERIFY(!balloon.mask().contains(inside - QPoint(8, 0)));
        // The body lies on the side away from the tip.
        QVERIFY(balloon.mask().contains(QPoint(balloon.width() / 2, below ? balloon.height() - 10 : 10)));
    }

    void followsTheTarget()
    {
        QWidget window;
        window.setGeometry(100, 100, 400, 300);
        auto* target = new QWidget(&window);
        target->setGeometry(50, 150, 100, 30);
        window.show();
        BalloonToolTip* balloon = quietBalloon(target, QPoint(50, 0));
        balloon->show();
        const QPoint start = balloon->pos();
        const QPoint anchor = target->mapToGlobal(QPoint(50, 0));
        target->move(70, 160);
        QCOMPARE(balloon->pos(), start + QPoint(20, 10));
        window.move(130, 90);
        QTRY_COMPARE(balloon->pos() - start, target->mapToGlobal(QPoint(50, 0)) - anchor);
        QVERIFY(balloon->pos() != start + QPoint(20, 10));
    }
};

KES_TEST_MAIN(tst_BalloonToolTip)
#include "tst_balloontooltip.moc"
