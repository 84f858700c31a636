// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/behavior/Draggable.h>

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <QWidget>

#include <memory>

using ko::qtToolkit::behavior::Draggable;

namespace {

// A frameless window that counts the handlers its events reach.
class Window : public QWidget
{
public:
    Window()
        : QWidget(nullptr, Qt::FramelessWindowHint)
    {
        resize(200, 100);
    }

    int showEvents = 0;
    int mousePresses = 0;
    int mouseMoves = 0;
    int mouseReleases = 0;

protected:
    void showEvent(QShowEvent *) override { ++showEvents; }
    void mousePressEvent(QMouseEvent *) override { ++mousePresses; }
    void mouseMoveEvent(QMouseEvent *) override { ++mouseMoves; }
    void mouseReleaseEvent(QMouseEvent *) override { ++mouseReleases; }
};

// Mouse events with a chosen global position: drags are measured in global coordinates.
void send(QWidget &widget, QEvent::Type type, const QPoint &local, const QPoint &global,
          Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const Qt::MouseButtons buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button);
    QMouseEvent event(type, local, global, type == QEvent::MouseMove ? Qt::NoButton : button, buttons, modifiers);
    QApplication::sendEvent(&widget, &event);
}

const QPoint grip(10, 10);
const QPoint screenGrip(1000, 500);

void press(QWidget &widget, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    send(widget, QEvent::MouseButtonPress, grip, screenGrip, Qt::LeftButton, modifiers);
}

void moveBy(QWidget &widget, const QPoint &delta, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    send(widget, QEvent::MouseMove, grip + delta, screenGrip + delta, Qt::LeftButton, modifiers);
}

void release(QWidget &widget, const QPoint &delta)
{
    send(widget, QEvent::MouseButtonRelease, grip + delta, screenGrip + delta);
}

} // namespace

class tst_Draggable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        Window window;
        const Draggable draggable(window);
        QCOMPARE(draggable.constrained(), false);
        QVERIFY(draggable.constrainedRect().isNull());
        QCOMPARE(draggable.constrainedRect().topLeft(), QPoint(0, 0));
        QCOMPARE(draggable.constrainedRect().bottomRight(), QPoint(-1, -1));
        QCOMPARE(draggable.constrainedOffset(), QPoint(0, 0));
    }

    void settersStoreAndMoveNothing()
    {
        Window window;
        window.move(40, 30);
        Draggable draggable(window);
        draggable.setConstrained(true);
        draggable.setConstrainedRect(QRect(100, 50, 800, 600));
        draggable.setConstrainedOffset(QPoint(-5, 7));
        QCOMPARE(draggable.constrained(), true);
        QCOMPARE(draggable.constrainedRect(), QRect(100, 50, 800, 600));
        QCOMPARE(draggable.constrainedOffset(), QPoint(-5, 7));
        QCOMPARE(window.pos(), QPoint(40, 30));
    }

    void unconstrainedShowIsConsumed()
    {
        Window plain;
        plain.move(40, 30);
        plain.show();
        QCOMPARE(plain.showEvents, 1);

        Window window;
        window.move(40, 30);
        Draggable draggable(window);
        window.show();
        QCOMPARE(window.showEvents, 0);
        QCOMPARE(window.pos(), QPoint(40, 30));
        QCOMPARE(draggable.constrainedOffset(), QPoint(0, 0));
    }

    void constrainedShow_data()
    {
        QTest::addColumn<QRect>("rect");
        QTest::addColumn<QPoint>("offset");
        QTest::addColumn<QPoint>("position");
        QTest::addColumn<QPoint>("storedOffset");

        // The window is 200 x 100.
        QTest::newRow("null rect puts the window at negative coordinates")
            << QRect() << QPoint(0, 0) << QPoint(-200, -100) << QPoint(-200, -100);
        QTest::newRow("null rect, positive offset") << QRect() << QPoint(30, 40) << QPoint(-200, -100) << QPoint(-200, -100);
        QTest::newRow("offset inside the rect")
            << QRect(100, 50, 800, 600) << QPoint(30, 40) << QPoint(130, 90) << QPoint(30, 40);
        QTest::newRow("offset beyond the bottom right")
            << QRect(100, 50, 800, 600) << QPoint(700, 580) << QPoint(700, 550) << QPoint(600, 500);
        QTest::newRow("negative offset") << QRect(100, 50, 800, 600) << QPoint(-30, -40) << QPoint(100, 50) << QPoint(0, 0);
        QTest::newRow("window exactly fits")
            << QRect(10, 20, 200, 100) << QPoint(5, 5) << QPoint(10, 20) << QPoint(0, 0);
        QTest::newRow("rect smaller than the window: the far edge wins")
            << QRect(0, 0, 100, 50) << QPoint(0, 0) << QPoint(-100, -50) << QPoint(-100, -50);
    }

    void constrainedShow()
    {
        QFETCH(QRect, rect);
        QFETCH(QPoint, offset);
        QFETCH(QPoint, position);
        QFETCH(QPoint, storedOffset);

        Window window;
        Draggable draggable(window);
        draggable.setConstrained(true);
        draggable.setConstrainedRect(rect);
        draggable.setConstrainedOffset(offset);
        window.show();
        QCOMPARE(window.pos(), position);
        QCOMPARE(draggable.constrainedOffset(), storedOffset);
        QCOMPARE(window.showEvents, 0);
    }

    void reopensWhereItWasLeft()
    {
        Window window;
        Draggable draggable(window);
        draggable.setConstrained(true);
        draggable.setConstrainedRect(QRect(100, 50, 800, 600));
        window.show();
        QCOMPARE(window.pos(), QPoint(100, 50));

        press(window);
        moveBy(window, QPoint(70, 45));
        release(window, QPoint(70, 45));
        QCOMPARE(window.pos(), QPoint(170, 95));
        QCOMPARE(draggable.constrainedOffset(), QPoint(70, 45));

        window.hide();
        window.move(0, 0);
        window.show();
        QCOMPARE(window.pos(), QPoint(170, 95));

        // A new rectangle keeps the offset: the window follows the rectangle.
        window.hide();
        draggable.setConstrainedRect(QRect(300, 200, 800, 600));
        window.show();
        QCOMPARE(window.pos(), QPoint(370, 245));
    }

    void drag_data()
    {
        QTest::addColumn<bool>("constrained");
        QTest::addColumn<QRect>("rect");
        QTest::addColumn<QPoint>("start");
        QTest::addColumn<QPoint>("delta");
        QTest::addColumn<QPoint>("end");
        QTest::addColumn<QPoint>("offset");

        const QRect rect(100, 50, 800, 600);
        QTest::newRow("free, 50 to the right")
            << false << QRect() << QPoint(300, 200) << QPoint(50, 0) << QPoint(350, 200) << QPoint(0, 0);
        QTest::newRow("free, anywhere") << false << rect << QPoint(300, 200) << QPoint(-1000, 900) << QPoint(-700, 1100)
                                        << QPoint(0, 0);
        QTest::newRow("constrained, room enough")
            << true << rect << QPoint(300, 200) << QPoint(50, 0) << QPoint(350, 200) << QPoint(250, 150);
        QTest::newRow("constrained, right edge stops it")
            << true << rect << QPoint(680, 200) << QPoint(50, 0) << QPoint(700, 200) << QPoint(600, 150);
        QTest::newRow("constrained, left edge stops it")
            << true << rect << QPoint(120, 200) << QPoint(-50, 0) << QPoint(100, 200) << QPoint(0, 150);
        QTest::newRow("constrained, bottom edge stops it")
            << true << rect << QPoint(300, 500) << QPoint(0, 80) << QPoint(300, 550) << QPoint(200, 500);
        QTest::newRow("constrained, top edge stops it")
            << true << rect << QPoint(300, 60) << QPoint(10, -80) << QPoint(310, 50) << QPoint(210, 0);
    }

    void drag()
    {
        QFETCH(bool, constrained);
        QFETCH(QRect, rect);
        QFETCH(QPoint, start);
        QFETCH(QPoint, delta);
        QFETCH(QPoint, end);
        QFETCH(QPoint, offset);

        Window window;
        window.move(start);
        Draggable draggable(window);
        draggable.setConstrained(constrained);
        draggable.setConstrainedRect(rect);

        press(window);
        QCOMPARE(window.pos(), start);
        moveBy(window, delta);
        QCOMPARE(window.pos(), end);
        QCOMPARE(draggable.constrainedOffset(), offset);
        release(window, delta);
        QCOMPARE(window.pos(), end);
    }

    void dragFollowsEveryMove()
    {
        Window window;
        window.move(300, 200);
        Draggable draggable(window);
        press(window);
        moveBy(window, QPoint(10, 5));
        QCOMPARE(window.pos(), QPoint(310, 205));
        moveBy(window, QPoint(25, -5));
        QCOMPARE(window.pos(), QPoint(325, 195));
    }

    void dragStoppedAtAnEdgeFollowsTheFingerBack()
    {
        // The delta is taken from the last move, not from the press: what was lost at the edge
        // is not made up when the finger turns back.
        Window window;
        window.move(680, 200);
        Draggable draggable(window);
        draggable.setConstrained(true);
        draggable.setConstrainedRect(QRect(100, 50, 800, 600));
        press(window);
        moveBy(window, QPoint(50, 0));
        QCOMPARE(window.pos(), QPoint(700, 200));
        moveBy(window, QPoint(40, 0));
        QCOMPARE(window.pos(), QPoint(690, 200));
    }

    void pressWithModifierDoesNotStartADrag_data()
    {
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::newRow("shift") << Qt::KeyboardModifiers(Qt::ShiftModifier);
        QTest::newRow("control") << Qt::KeyboardModifiers(Qt::ControlModifier);
        QTest::newRow("alt") << Qt::KeyboardModifiers(Qt::AltModifier);
    }

    void pressWithModifierDoesNotStartADrag()
    {
        QFETCH(Qt::KeyboardModifiers, modifiers);
        Window window;
        window.move(300, 200);
        Draggable draggable(window);
        press(window, modifiers);
        moveBy(window, QPoint(50, 0));
        QCOMPARE(window.pos(), QPoint(300, 200));
    }

    void moveWithModifierIsIgnored()
    {
        Window window;
        window.move(300, 200);
        Draggable draggable(window);
        press(window);
        moveBy(window, QPoint(10, 0));
        moveBy(window, QPoint(30, 0), Qt::ShiftModifier);
        QCOMPARE(window.pos(), QPoint(310, 200));
        // The ignored move did not update the last position either.
        moveBy(window, QPoint(40, 0));
        QCOMPARE(window.pos(), QPoint(340, 200));
    }

    void releaseWithModifierDoesNotEndTheDrag()
    {
        Window window;
        window.move(300, 200);
        Draggable draggable(window);
        press(window);
        send(window, QEvent::MouseButtonRelease, grip, screenGrip, Qt::LeftButton, Qt::ShiftModifier);
        moveBy(window, QPoint(20, 0));
        QCOMPARE(window.pos(), QPoint(320, 200));
    }

    void releaseEndsTheDrag()
    {
        Window window;
        window.move(300, 200);
        Draggable draggable(window);
        press(window);
        release(window, QPoint());
        moveBy(window, QPoint(50, 0));
        QCOMPARE(window.pos(), QPoint(300, 200));
    }

    void onlyALeftPressInsideStartsADrag()
    {
        Window window;
        window.move(300, 200);
        Draggable draggable(window);

        send(window, QEvent::MouseButtonPress, grip, screenGrip, Qt::RightButton);
        moveBy(window, QPoint(50, 0));
        QCOMPARE(window.pos(), QPoint(300, 200));
        send(window, QEvent::MouseButtonRelease, grip, screenGrip, Qt::RightButton);

        send(window, QEvent::MouseButtonPress, QPoint(250, 10), screenGrip, Qt::LeftButton);
        moveBy(window, QPoint(50, 0));
        QCOMPARE(window.pos(), QPoint(300, 200));
    }

    void mouseEventsAreNeverConsumed()
    {
        Window window;
        Draggable draggable(window);
        press(window);
        moveBy(window, QPoint(5, 5));
        release(window, QPoint(5, 5));
        press(window, Qt::ShiftModifier);
        QCOMPARE(window.mousePresses, 2);
        QCOMPARE(window.mouseMoves, 1);
        QCOMPARE(window.mouseReleases, 1);
    }

    void destroyingTheBehaviourLetsShowThrough()
    {
        Window window;
        window.move(40, 30);
        auto draggable = std::make_unique<Draggable>(window);
        draggable->setConstrained(true);
        draggable.reset();
        window.show();
        QCOMPARE(window.showEvents, 1);
        QCOMPARE(window.pos(), QPoint(40, 30));
    }
};

QTEST_MAIN(tst_Draggable)
#include "tst_Draggable.moc"
