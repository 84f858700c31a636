// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/Fader.h>

#include <WidgetSupport.h>
#include <TestSupport.h>

#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QWindow>
#include <qpa/qwindowsysteminterface.h>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <utility>

using ko::qtToolkit::test::moveHeld;
using ko::qtToolkit::test::sliderHandleRect;
using ko::qtToolkit::test::PaintCounter;
using ko::qtToolkit::widget::Fader;

Q_DECLARE_METATYPE(Qt::MouseButton)

namespace {

// Takes presses and wheel turns that children leave to it.
class Parent : public QWidget
{
public:
    QVector<QPoint> presses;
    int wheels = 0;

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        presses.append(event->pos());
        event->accept();
    }
    void wheelEvent(QWheelEvent *event) override
    {
        ++wheels;
        event->accept();
    }
};

void sendPress(QWidget *widget, QEvent::Type type, const QPointF &position, Qt::MouseButton button)
{
    QMouseEvent event(type, position, widget->mapToGlobal(position.toPoint()), button, button, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

// A wheel turn over \a position of \a widget, delivered by the window system like a real one.
void sendWheel(QWidget *widget, const QPoint &position, int angle)
{
    QWindow *window = widget->window()->windowHandle();
    const QPoint local = widget->mapTo(widget->window(), position);
    QWindowSystemInterface::handleWheelEvent(window, local, window->mapToGlobal(local), QPoint(), QPoint(0, angle));
    QWindowSystemInterface::flushWindowSystemEvents();
}

// A fader shown inside a parent that records what the fader leaves to it.
struct Scene
{
    Parent parent;
    Fader *fader;

    explicit Scene(Qt::Orientation orientation, int minimum = 0, int maximum = 100, int value = 50)
        : fader(new Fader(orientation, &parent))
    {
        parent.resize(200, 300);
        fader->setRange(minimum, maximum);
        fader->setValue(value);
        fader->setGeometry(50, 50, 17, orientation == Qt::Vertical ? 200 : 40);
        parent.show();
    }
};

// The pixels a drag must cover before its mode is chosen.
constexpr int modeThreshold()
{
    return 11;
}

QVariant noClass()
{
    return QVariant();
}

// A double click at \a position of \a widget as the window system delivers one: two clicks
// within the double-click interval, which Qt turns into a press and a double click.
void doubleClick(QWidget *widget, const QPoint &position)
{
    QWidget *window = widget->window();
    QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {}, widget->mapTo(window, position));
}

// A double tap at \a position of \a widget on a touch screen: two touches within the
// double-click interval. The fader takes no touch events, so Qt synthesizes the mouse events.
void doubleTap(QWidget *widget, const QPoint &position)
{
    static auto *const device = QTest::createTouchDevice();
    for (int tap = 0; tap < 2; ++tap) {
        QTest::touchEvent(widget, device).press(0, position, widget);
        QTest::touchEvent(widget, device).release(0, position, widget);
    }
}

// The pixels a handle can travel, measured as the fader measures them.
int grooveSpan(const QSlider &slider)
{
    struct Access : QSlider
    {
        using QSlider::initStyleOption;
    };
    QStyleOptionSlider option;
    (slider.*(&Access::initStyleOption))(&option);
    const QRect groove = slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, &slider);
    const QRect handle = sliderHandleRect(slider);
    return slider.orientation() == Qt::Horizontal ? groove.width() - handle.width()
                                                  : groove.height() - handle.height();
}

// The coordinate along the fader of \a point.
int along(const QSlider &slider, const QPoint &point)
{
    return slider.orientation() == Qt::Horizontal ? point.x() : point.y();
}

// A finger position \a raised pixels from \a grab toward the maximum, after a move of
// \a across pixels across the fader.
QPoint raisedBy(const QSlider &slider, const QPoint &grab, int raised, int across = 0)
{
    return slider.orientation() == Qt::Horizontal ? grab + QPoint(raised, across) : grab + QPoint(across, -raised);
}

// The pixels of \a widget, in one format whether it is shown or not.
QImage pixels(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// The fader as it looks at \a value, without any drag: the reference for rendered pixels.
QImage lookAt(Fader &fader, int value)
{
    Fader reference(fader.orientation());
    reference.setRange(fader.minimum(), fader.maximum());
    reference.setValue(value);
    reference.setSingleStep(fader.singleStep());
    reference.setFixedSize(fader.size());
    return pixels(reference);
}

} // namespace

class tst_Fader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void pressOnHandleGrabs();
    void pressOutsideHandleReachesParent_data();
    void pressOutsideHandleReachesParent();
    void handleEdgesCount_data();
    void handleEdgesCount();
    void doubleClickOnHandleGrabs();
    void dragPath_data();
    void dragPath();
    void dragNearTheIntLimits_data();
    void dragNearTheIntLimits();
    void singleStepKeptAfterDrag();
    void zeroSingleStepDuringDrag();
    void releaseWithoutGrabSignals();
    void anyButtonReleaseEndsTheGrab();
    void wheelNeverMovesTheFader_data();
    void wheelNeverMovesTheFader();
    void disabledFaderIsInert();
    void modeChangeRepaintsAtOnce();
    void modeLookFollowsStyleSheet();
    void additionsAreOffByDefault();
    void defaultValue_data();
    void defaultValue();
    void doubleTapResetsToDefault_data();
    void doubleTapResetsToDefault();
    void doubleTapBesideTheHandleDoesNothing_data();
    void doubleTapBesideTheHandleDoesNothing();
    void dragAfterResetStartsAtDefault();
    void fullRangeDragSweepsTheRange_data();
    void fullRangeDragSweepsTheRange();
    void fullRangeDragIsRelativeToTheGrab();
    void fullRangeCoarseSnapsToBiggerSteps_data();
    void fullRangeCoarseSnapsToBiggerSteps();
    void fullRangeDragKeepsTheFaderRules();
    void dragModeSwitchesBack();
};

void tst_Fader::defaults()
{
    Fader vertical;
    QCOMPARE(vertical.orientation(), Qt::Vertical);
    QCOMPARE(vertical.minimumWidth(), 17);
    QCOMPARE(vertical.maximumWidth(), 17);
    QCOMPARE(vertical.focusPolicy(), Qt::NoFocus);
    QCOMPARE(vertical.isSliding(), false);
    QCOMPARE(vertical.property("class"), noClass());
    QCOMPARE(vertical.singleStep(), 1);

    // Fixed at 17 pixels wide whatever the orientation.
    Fader horizontal(Qt::Horizontal);
    QCOMPARE(horizontal.orientation(), Qt::Horizontal);
    QCOMPARE(horizontal.minimumWidth(), 17);
    QCOMPARE(horizontal.maximumWidth(), 17);
    QCOMPARE(horizontal.focusPolicy(), Qt::NoFocus);

    const int index = Fader::staticMetaObject.indexOfProperty("isSliding");
    QVERIFY(index >= 0);
    const QMetaProperty property = Fader::staticMetaObject.property(index);
    QVERIFY(property.isReadable());
    QVERIFY(!property.isWritable());
    QCOMPARE(vertical.property("isSliding"), QVariant(false));
}

void tst_Fader::pressOnHandleGrabs()
{
    Scene scene(Qt::Vertical);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));
    QSignalSpy sliding(scene.fader, &Fader::slidingChanged);
    QSignalSpy values(scene.fader, &QSlider::valueChanged);

    QTest::mousePress(scene.fader, Qt::LeftButton, {}, sliderHandleRect(*scene.fader).center());
    QVERIFY(scene.fader->isSliding());
    QCOMPARE(scene.fader->property("isSliding"), QVariant(true));
    QCOMPARE(sliding.count(), 1);
    QCOMPARE(sliding.at(0).at(0).toBool(), true);
    QCOMPARE(scene.fader->value(), 50);
    QCOMPARE(values.count(), 0);
    QVERIFY(scene.parent.presses.isEmpty());
    // QSlider never saw the press.
    QVERIFY(!scene.fader->isSliderDown());

    QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, sliderHandleRect(*scene.fader).center());
    QVERIFY(!scene.fader->isSliding());
    QCOMPARE(sliding.count(), 2);
    QCOMPARE(sliding.at(1).at(0).toBool(), false);
    QCOMPARE(scene.fader->value(), 50);
}

void tst_Fader::pressOutsideHandleReachesParent_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QString>("where");
    QTest::addColumn<Qt::MouseButton>("button");

    QTest::newRow("vertical groove above the handle") << Qt::Vertical << QStringLiteral("before") << Qt::LeftButton;
    QTest::newRow("vertical groove below the handle") << Qt::Vertical << QStringLiteral("after") << Qt::LeftButton;
    QTest::newRow("horizontal groove beside the handle") << Qt::Horizontal << QStringLiteral("after")
                                                         << Qt::LeftButton;
    QTest::newRow("right button on the handle") << Qt::Vertical << QStringLiteral("handle") << Qt::RightButton;
    QTest::newRow("middle button on the handle") << Qt::Vertical << QStringLiteral("handle") << Qt::MiddleButton;
}

void tst_Fader::pressOutsideHandleReachesParent()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(QString, where);
    QFETCH(Qt::MouseButton, button);

    Scene scene(orientation);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));
    const QRect handle = sliderHandleRect(*scene.fader);
    QPoint point = handle.center();
    if (where == QLatin1String("before"))
        point.setY(handle.top() - 20);
    else if (where == QLatin1String("after") && orientation == Qt::Vertical)
        point.setY(handle.bottom() + 20);
    else if (where == QLatin1String("after"))
        point.setY(handle.bottom() + 5);
    QVERIFY(scene.fader->rect().contains(point));

    QSignalSpy sliding(scene.fader, &Fader::slidingChanged);
    QSignalSpy values(scene.fader, &QSlider::valueChanged);
    QTest::mousePress(scene.fader, button, {}, point);

    QCOMPARE(scene.parent.presses, QVector<QPoint>{scene.fader->mapToParent(point)});
    QVERIFY(!scene.fader->isSliding());
    QCOMPARE(sliding.count(), 0);
    QCOMPARE(scene.fader->value(), 50);
    QCOMPARE(values.count(), 0);
    QVERIFY(!scene.fader->isSliderDown());

    // A drag that follows moves nothing either.
    moveHeld(scene.fader, point + QPoint(0, -60));
    moveHeld(scene.fader, point + QPoint(-60, -60));
    QCOMPARE(scene.fader->value(), 50);
    QCOMPARE(scene.fader->property("class"), noClass());
    QTest::mouseRelease(scene.fader, button, {}, point);
    QCOMPARE(scene.fader->value(), 50);
}

void tst_Fader::handleEdgesCount_data()
{
    QTest::addColumn<QString>("corner");
    QTest::addColumn<QPointF>("offset");
    QTest::addColumn<bool>("grabs");

    QTest::newRow("top left corner") << QStringLiteral("topLeft") << QPointF(0, 0) << true;
    QTest::newRow("bottom right corner") << QStringLiteral("bottomRight") << QPointF(0, 0) << true;
    QTest::newRow("one pixel above") << QStringLiteral("topLeft") << QPointF(0, -1) << false;
    QTest::newRow("one pixel below") << QStringLiteral("bottomRight") << QPointF(0, 1) << false;
    QTest::newRow("rounds back onto the handle") << QStringLiteral("bottomRight") << QPointF(0, 0.4) << true;
    QTest::newRow("rounds off the handle") << QStringLiteral("bottomRight") << QPointF(0, 0.6) << false;
    QTest::newRow("rounds back above") << QStringLiteral("topLeft") << QPointF(0, -0.4) << true;
}

void tst_Fader::handleEdgesCount()
{
    QFETCH(QString, corner);
    QFETCH(QPointF, offset);
    QFETCH(bool, grabs);

    Scene scene(Qt::Vertical);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));
    const QRect handle = sliderHandleRect(*scene.fader);
    const QPointF point = QPointF(corner == QLatin1String("topLeft") ? handle.topLeft() : handle.bottomRight()) + offset;

    sendPress(scene.fader, QEvent::MouseButtonPress, point, Qt::LeftButton);
    QCOMPARE(scene.fader->isSliding(), grabs);
    QCOMPARE(scene.parent.presses.size(), grabs ? 0 : 1);
    QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, point.toPoint());
}

void tst_Fader::doubleClickOnHandleGrabs()
{
    Scene scene(Qt::Vertical);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));
    const QPoint center = sliderHandleRect(*scene.fader).center();
    QSignalSpy sliding(scene.fader, &Fader::slidingChanged);

    sendPress(scene.fader, QEvent::MouseButtonDblClick, center, Qt::LeftButton);
    QVERIFY(scene.fader->isSliding());
    QCOMPARE(sliding.count(), 1);
    moveHeld(scene.fader, center + QPoint(0, -20));
    moveHeld(scene.fader, center + QPoint(0, -40));
    QCOMPARE(scene.fader->value(), 54);
    QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, center + QPoint(0, -40));

    // A double click beside the handle goes to the parent like a press.
    const QPoint groove(center.x(), sliderHandleRect(*scene.fader).bottom() + 30);
    sendPress(scene.fader, QEvent::MouseButtonDblClick, groove, Qt::LeftButton);
    QVERIFY(!scene.fader->isSliding());
    QCOMPARE(scene.parent.presses.size(), 1);
}

using Path = QVector<QPoint>;
using Values = QVector<int>;

void tst_Fader::dragPath_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("start");
    QTest::addColumn<Path>("path");       // offsets from the grab point
    QTest::addColumn<Values>("values");   // the value after each move
    QTest::addColumn<QStringList>("modes"); // "class" after each move ("" when absent)
    QTest::addColumn<int>("singleStep");  // after the release

    const QString none;
    const QString fine = QStringLiteral("fine");
    const QString coarse = QStringLiteral("coarse");

    QTest::newRow("vertical up 30 in fine mode")
        << Qt::Vertical << 0 << 50 << Path{{0, -5}, {0, -10}, {0, -11}, {0, -20}, {0, -30}}
        << Values{50, 50, 50, 52, 53} << QStringList{none, none, fine, fine, fine} << 10;
    QTest::newRow("vertical down and back up in fine mode")
        << Qt::Vertical << 0 << 50 << Path{{0, 11}, {0, 25}, {0, 9}, {0, -25}}
        << Values{50, 48, 50, 52} << QStringList{fine, fine, fine, fine} << 10;
    QTest::newRow("the deciding move changes no value")
        << Qt::Vertical << 0 << 50 << Path{{0, -30}, {0, -30}, {0, -31}}
        << Values{50, 53, 53} << QStringList{fine, fine, fine} << 10;
    QTest::newRow("fine mode stays when moving across later")
        << Qt::Vertical << 0 << 50 << Path{{0, -12}, {40, -12}, {-40, -35}}
        << Values{50, 51, 53} << QStringList{fine, fine, fine} << 10;
    QTest::newRow("vertical 12 sideways then 100 up in coarse mode")
        << Qt::Vertical << 0 << 50 << Path{{12, 0}, {12, -100}}
        << Values{50, 70} << QStringList{coarse, coarse} << 5;
    QTest::newRow("coarse truncates toward zero to tens")
        << Qt::Vertical << 0 << 50 << Path{{-12, 0}, {-12, -99}, {-12, -49}, {-12, -50}}
        << Values{50, 60, 50, 60} << QStringList{coarse, coarse, coarse, coarse} << 5;
    QTest::newRow("coarse downwards")
        << Qt::Vertical << 0 << 50 << Path{{-12, 0}, {-12, 37}}
        << Values{50, 40} << QStringList{coarse, coarse} << 5;
    QTest::newRow("coarse negative result truncates toward zero")
        << Qt::Vertical << -100 << 3 << Path{{12, 0}, {12, 100}}
        << Values{3, -10} << QStringList{coarse, coarse} << 5;
    QTest::newRow("coarse mode stays when moving along later")
        << Qt::Vertical << 0 << 50 << Path{{11, 3}, {11, -60}}
        << Values{50, 60} << QStringList{coarse, coarse} << 5;
    QTest::newRow("diagonal: along is checked first")
        << Qt::Vertical << 0 << 50 << Path{{11, -11}, {11, -21}}
        << Values{50, 52} << QStringList{fine, fine} << 10;
    QTest::newRow("ten pixels either way decide nothing")
        << Qt::Vertical << 0 << 50 << Path{{10, -10}, {-10, 10}}
        << Values{50, 50} << QStringList{none, none} << 1;
    QTest::newRow("clamped at the maximum")
        << Qt::Vertical << 0 << 95 << Path{{0, -11}, {0, -200}}
        << Values{95, 100} << QStringList{fine, fine} << 10;
    QTest::newRow("horizontal right raises in fine mode")
        << Qt::Horizontal << 0 << 50 << Path{{11, 0}, {30, 0}, {-30, 0}}
        << Values{50, 53, 47} << QStringList{fine, fine, fine} << 10;
    QTest::newRow("horizontal across first is coarse")
        << Qt::Horizontal << 0 << 50 << Path{{0, 12}, {100, 12}, {-100, -12}}
        << Values{50, 70, 30} << QStringList{coarse, coarse, coarse} << 5;
}

void tst_Fader::dragPath()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(int, minimum);
    QFETCH(int, start);
    QFETCH(Path, path);
    QFETCH(Values, values);
    QFETCH(QStringList, modes);
    QFETCH(int, singleStep);

    Scene scene(orientation, minimum, 100, start);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));
    QSignalSpy sliding(scene.fader, &Fader::slidingChanged);
    const QPoint grab = sliderHandleRect(*scene.fader).center();

    QTest::mousePress(scene.fader, Qt::LeftButton, {}, grab);
    QVERIFY(scene.fader->isSliding());
    for (int i = 0; i < path.size(); ++i) {
        moveHeld(scene.fader, grab + path.at(i));
        QVERIFY2(scene.fader->value() == values.at(i),
                 qPrintable(QStringLiteral("move %1: value %2, expected %3")
                                .arg(i).arg(scene.fader->value()).arg(values.at(i))));
        const QVariant mode = scene.fader->property("class");
        if (modes.at(i).isEmpty())
            QCOMPARE(mode, noClass());
        else
            QCOMPARE(mode.toString(), modes.at(i));
        QVERIFY(scene.fader->isSliding());
    }
    QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, grab + path.last());

    QCOMPARE(scene.fader->value(), values.last());
    QCOMPARE(scene.fader->property("class"), noClass());
    QCOMPARE(scene.fader->singleStep(), singleStep);
    QVERIFY(!scene.fader->isSliding());
    QCOMPARE(sliding.count(), 2);
    QCOMPARE(sliding.at(0).at(0).toBool(), true);
    QCOMPARE(sliding.at(1).at(0).toBool(), false);
    QVERIFY(scene.parent.presses.isEmpty());
}

// Data faders over unbounded ranges sit at the ends of the int range; a drag past them
// saturates instead of wrapping round.
void tst_Fader::dragNearTheIntLimits_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("start");
    QTest::addColumn<Path>("path");
    QTest::addColumn<Values>("values");

    QTest::newRow("fine, up past the int maximum")
        << INT_MAX - 1000 << INT_MAX << INT_MAX - 5 << Path{{0, -11}, {0, -200}} << Values{INT_MAX - 5, INT_MAX};
    QTest::newRow("fine, down past the int minimum")
        << INT_MIN << INT_MIN + 1000 << INT_MIN + 5 << Path{{0, 11}, {0, 200}} << Values{INT_MIN + 5, INT_MIN};
    QTest::newRow("coarse, up past the int maximum")
        << INT_MAX - 1000 << INT_MAX << INT_MAX << Path{{12, 0}, {12, -200}} << Values{INT_MAX, 2147483640};
    QTest::newRow("coarse, down past the int minimum")
        << INT_MIN << INT_MIN + 1000 << INT_MIN << Path{{12, 0}, {12, 200}} << Values{INT_MIN, -2147483640};
}

void tst_Fader::dragNearTheIntLimits()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, start);
    QFETCH(Path, path);
    QFETCH(Values, values);

    Scene scene(Qt::Vertical, minimum, maximum, start);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));
    const QPoint grab = sliderHandleRect(*scene.fader).center();
    QTest::mousePress(scene.fader, Qt::LeftButton, {}, grab);
    for (int i = 0; i < path.size(); ++i) {
        moveHeld(scene.fader, grab + path.at(i));
        QCOMPARE(scene.fader->value(), values.at(i));
    }
    QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, grab + path.constLast());
}

void tst_Fader::singleStepKeptAfterDrag()
{
    Scene scene(Qt::Vertical);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));

    auto drag = [&](const QPoint &to) {
        const QPoint grab = sliderHandleRect(*scene.fader).center();
        QTest::mousePress(scene.fader, Qt::LeftButton, {}, grab);
        moveHeld(scene.fader, grab + to);
        QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, grab + to);
    };

    drag({0, -15});
    QCOMPARE(scene.fader->singleStep(), 10);
    drag({15, 0});
    QCOMPARE(scene.fader->singleStep(), 5);
    // A grab that decides no mode leaves the step of the last drag.
    drag({3, -3});
    QCOMPARE(scene.fader->singleStep(), 5);
    drag({0, 15});
    QCOMPARE(scene.fader->singleStep(), 10);

    // The kept step is the step of keyboard and programmatic single steps too.
    const int before = scene.fader->value();
    scene.fader->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    QCOMPARE(scene.fader->value(), before + 10);
}

void tst_Fader::zeroSingleStepDuringDrag()
{
    Scene scene(Qt::Vertical);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));
    const QPoint grab = sliderHandleRect(*scene.fader).center();

    QTest::mousePress(scene.fader, Qt::LeftButton, {}, grab);
    moveHeld(scene.fader, grab + QPoint(0, -11));
    QCOMPARE(scene.fader->singleStep(), 10);
    // A step the application sets during the drag is used at once; 0 counts as 1.
    scene.fader->setSingleStep(0);
    moveHeld(scene.fader, grab + QPoint(0, -20));
    QCOMPARE(scene.fader->value(), 70);
    scene.fader->setSingleStep(4);
    moveHeld(scene.fader, grab + QPoint(0, -21));
    QCOMPARE(scene.fader->value(), 55);
    QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, grab + QPoint(0, -21));
    QCOMPARE(scene.fader->value(), 55);
}

void tst_Fader::releaseWithoutGrabSignals()
{
    Scene scene(Qt::Vertical);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));
    QSignalSpy sliding(scene.fader, &Fader::slidingChanged);

    QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, QPoint(8, 5));
    QCOMPARE(sliding.count(), 1);
    QCOMPARE(sliding.at(0).at(0).toBool(), false);
    QVERIFY(!scene.fader->isSliding());

    // Also after a press that went to the parent.
    QTest::mousePress(scene.fader, Qt::LeftButton, {}, QPoint(8, 5));
    QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, QPoint(8, 5));
    QCOMPARE(sliding.count(), 2);
    QCOMPARE(sliding.at(1).at(0).toBool(), false);
}

void tst_Fader::anyButtonReleaseEndsTheGrab()
{
    Scene scene(Qt::Vertical);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));
    QSignalSpy sliding(scene.fader, &Fader::slidingChanged);
    const QPoint grab = sliderHandleRect(*scene.fader).center();

    QTest::mousePress(scene.fader, Qt::LeftButton, {}, grab);
    moveHeld(scene.fader, grab + QPoint(0, -20));
    QCOMPARE(scene.fader->property("class").toString(), QStringLiteral("fine"));
    QTest::mousePress(scene.fader, Qt::RightButton, {}, grab + QPoint(0, -20));
    QTest::mouseRelease(scene.fader, Qt::RightButton, {}, grab + QPoint(0, -20));
    QVERIFY(!scene.fader->isSliding());
    QCOMPARE(scene.fader->property("class"), noClass());
    QCOMPARE(sliding.count(), 2);
    QCOMPARE(sliding.at(1).at(0).toBool(), false);

    // Moves after the grab ended change nothing.
    const int value = scene.fader->value();
    moveHeld(scene.fader, grab + QPoint(0, -80));
    QCOMPARE(scene.fader->value(), value);
    QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, grab + QPoint(0, -80));
    QCOMPARE(sliding.count(), 3);
}

void tst_Fader::wheelNeverMovesTheFader_data()
{
    QTest::addColumn<int>("angle");
    QTest::newRow("wheel up") << 120;
    QTest::newRow("wheel down") << -120;
}

void tst_Fader::wheelNeverMovesTheFader()
{
    QFETCH(int, angle);

    Scene scene(Qt::Vertical);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));
    QSignalSpy values(scene.fader, &QSlider::valueChanged);
    const QPoint center = sliderHandleRect(*scene.fader).center();

    // A plain slider in the same place would move.
    auto *slider = new QSlider(Qt::Vertical, &scene.parent);
    slider->setRange(0, 100);
    slider->setValue(50);
    slider->setGeometry(100, 50, 17, 200);
    slider->show();
    sendWheel(slider, slider->rect().center(), angle);
    QVERIFY(slider->value() != 50);
    QCOMPARE(scene.parent.wheels, 0);

    sendWheel(scene.fader, center, angle);
    QCOMPARE(scene.fader->value(), 50);
    QCOMPARE(values.count(), 0);
    // The wheel goes on to the parent, as for any widget that does not use it.
    QCOMPARE(scene.parent.wheels, 1);

    // Also while the handle is held.
    QTest::mousePress(scene.fader, Qt::LeftButton, {}, center);
    sendWheel(scene.fader, center, angle);
    QCOMPARE(scene.fader->value(), 50);
    QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, center);
}

void tst_Fader::disabledFaderIsInert()
{
    Scene scene(Qt::Vertical);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));
    scene.fader->setEnabled(false);
    QSignalSpy sliding(scene.fader, &Fader::slidingChanged);
    QSignalSpy values(scene.fader, &QSlider::valueChanged);
    const QPoint grab = sliderHandleRect(*scene.fader).center();

    QTest::mousePress(scene.fader, Qt::LeftButton, {}, grab);
    QVERIFY(!scene.fader->isSliding());
    moveHeld(scene.fader, grab + QPoint(0, -11));
    moveHeld(scene.fader, grab + QPoint(0, -60));
    QCOMPARE(scene.fader->property("class"), noClass());
    QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, grab + QPoint(0, -60));
    sendWheel(scene.fader, grab, 120);

    QCOMPARE(sliding.count(), 0);
    QCOMPARE(values.count(), 0);
    QCOMPARE(scene.fader->value(), 50);
    QCOMPARE(scene.fader->singleStep(), 1);

    // Enabled again, it works as before.
    scene.fader->setEnabled(true);
    QTest::mousePress(scene.fader, Qt::LeftButton, {}, grab);
    moveHeld(scene.fader, grab + QPoint(0, -11));
    moveHeld(scene.fader, grab + QPoint(0, -20));
    QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, grab + QPoint(0, -20));
    QCOMPARE(scene.fader->value(), 52);
    QCOMPARE(sliding.count(), 2);
}

void tst_Fader::modeChangeRepaintsAtOnce()
{
    Scene scene(Qt::Vertical);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));
    PaintCounter counter;
    scene.fader->installEventFilter(&counter);
    const QPoint grab = sliderHandleRect(*scene.fader).center();

    QTest::mousePress(scene.fader, Qt::LeftButton, {}, grab);
    QCoreApplication::processEvents();
    int paints = counter.paints;
    moveHeld(scene.fader, grab + QPoint(0, -5));
    QCOMPARE(counter.paints, paints);
    // No event processing in between: the mode change paints by itself.
    moveHeld(scene.fader, grab + QPoint(0, -11));
    QVERIFY(counter.paints > paints);

    QCoreApplication::processEvents();
    paints = counter.paints;
    QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, grab + QPoint(0, -11));
    QVERIFY(counter.paints > paints);
}

void tst_Fader::modeLookFollowsStyleSheet()
{
    const QString sheet = ko::qtToolkit::test::toolkitStyleSheet();
    QVERIFY(sheet.contains(QLatin1String("ko--qtToolkit--widget--Fader[class=fine]")));

    Parent parent;
    parent.setStyleSheet(sheet);
    parent.resize(200, 300);
    auto *fader = new Fader(&parent);
    fader->setRange(0, 100);
    fader->setValue(50);
    fader->setGeometry(50, 50, 17, 200);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));

    const QColor fineHandle(0x333333);
    const QColor coarseHandle(0x7a7a7a);
    auto handleColor = [&] {
        const QRect handle = sliderHandleRect(*fader);
        return ko::qtToolkit::test::rgbAt(fader->grab().toImage(), handle.center().x(), handle.center().y());
    };
    const QColor idle = handleColor();
    QVERIFY(idle != fineHandle);
    QVERIFY(idle != coarseHandle);

    QPoint grab = sliderHandleRect(*fader).center();
    QTest::mousePress(fader, Qt::LeftButton, {}, grab);
    QCOMPARE(handleColor(), idle);
    moveHeld(fader, grab + QPoint(0, -12));
    QCOMPARE(handleColor(), fineHandle);
    moveHeld(fader, grab + QPoint(0, -40));
    QCOMPARE(fader->value(), 54);
    QCOMPARE(handleColor(), fineHandle);
    QTest::mouseRelease(fader, Qt::LeftButton, {}, grab + QPoint(0, -40));
    QCOMPARE(handleColor(), idle);

    grab = sliderHandleRect(*fader).center();
    QTest::mousePress(fader, Qt::LeftButton, {}, grab);
    moveHeld(fader, grab + QPoint(12, 0));
    QCOMPARE(handleColor(), coarseHandle);
    QTest::mouseRelease(fader, Qt::LeftButton, {}, grab + QPoint(12, 0));
    QCOMPARE(handleColor(), idle);
}

void tst_Fader::additionsAreOffByDefault()
{
    Fader fader;
    QCOMPARE(fader.isResetOnDoubleTapEnabled(), false);
    QCOMPARE(fader.dragMode(), Fader::StepDrag);
    // The default follows the minimum until one is set.
    QCOMPARE(fader.defaultValue(), fader.minimum());
    fader.setRange(-40, 60);
    QCOMPARE(fader.defaultValue(), -40);
    fader.setMinimum(7);
    QCOMPARE(fader.defaultValue(), 7);

    // The fader's meta-object stays as it was: the additions are plain functions.
    const QMetaObject &meta = Fader::staticMetaObject;
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 1);
    QCOMPARE(meta.enumeratorCount() - meta.enumeratorOffset(), 0);

    fader.setDefaultValue(20);
    QCOMPARE(fader.defaultValue(), 20);
    fader.setResetOnDoubleTapEnabled(true);
    QVERIFY(fader.isResetOnDoubleTapEnabled());
    fader.setDragMode(Fader::FullRangeDrag);
    QCOMPARE(fader.dragMode(), Fader::FullRangeDrag);
    fader.setResetOnDoubleTapEnabled(false);
    QVERIFY(!fader.isResetOnDoubleTapEnabled());
    fader.setDragMode(Fader::StepDrag);
    QCOMPARE(fader.dragMode(), Fader::StepDrag);
}

void tst_Fader::defaultValue_data()
{
    QTest::addColumn<bool>("explicitDefault");
    QTest::addColumn<int>("setTo");
    QTest::addColumn<int>("expected");
    QTest::addColumn<int>("newMinimum");
    QTest::addColumn<int>("newMaximum");
    QTest::addColumn<int>("expectedAfterRange");

    QTest::newRow("follows the minimum") << false << 0 << 0 << -20 << 50 << -20;
    QTest::newRow("explicit default stays when the range changes") << true << 30 << 30 << -20 << 50 << 30;
    QTest::newRow("explicit default at the minimum stays put") << true << 0 << 0 << -20 << 50 << 0;
    QTest::newRow("kept outside a later range") << true << 80 << 80 << 0 << 50 << 80;
    QTest::newRow("kept beyond the range") << true << 500 << 500 << 0 << 1000 << 500;
    QTest::newRow("kept below the range") << true << -500 << -500 << -10 << 10 << -500;
    QTest::newRow("int maximum") << true << INT_MAX << INT_MAX << 0 << 10 << INT_MAX;
    QTest::newRow("int minimum") << true << INT_MIN << INT_MIN << 0 << 10 << INT_MIN;
}

void tst_Fader::defaultValue()
{
    QFETCH(bool, explicitDefault);
    QFETCH(int, setTo);
    QFETCH(int, expected);
    QFETCH(int, newMinimum);
    QFETCH(int, newMaximum);
    QFETCH(int, expectedAfterRange);

    Fader fader;
    fader.setRange(0, 100);
    fader.setValue(50);
    QSignalSpy values(&fader, &QSlider::valueChanged);
    if (explicitDefault)
        fader.setDefaultValue(setTo);
    QCOMPARE(fader.defaultValue(), expected);
    // Setting the default leaves the value alone.
    QCOMPARE(fader.value(), 50);
    QCOMPARE(values.count(), 0);

    fader.setRange(newMinimum, newMaximum);
    QCOMPARE(fader.defaultValue(), expectedAfterRange);
}

void tst_Fader::doubleTapResetsToDefault_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("explicitDefault");
    QTest::addColumn<int>("defaultValue");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("expected");

    const QString click = QStringLiteral("double click");
    const QString tap = QStringLiteral("double tap");
    const QString event = QStringLiteral("double click event");

    QTest::newRow("double click resets to the default") << click << true << true << 30 << 50 << 30;
    QTest::newRow("double tap resets to the default") << tap << true << true << 30 << 50 << 30;
    QTest::newRow("double click event alone resets") << event << true << true << 30 << 50 << 30;
    QTest::newRow("default following the minimum") << click << true << false << 0 << 50 << -10;
    QTest::newRow("double tap to the minimum") << tap << true << false << 0 << 50 << -10;
    QTest::newRow("default above the range is clamped") << click << true << true << 500 << 50 << 100;
    QTest::newRow("default below the range is clamped") << tap << true << true << -500 << 50 << -10;
    QTest::newRow("already at the default") << click << true << true << 30 << 30 << 30;
    QTest::newRow("switched off, a double click changes nothing") << click << false << true << 30 << 50 << 50;
    QTest::newRow("switched off, a double tap changes nothing") << tap << false << true << 30 << 50 << 50;
    QTest::newRow("switched off, a double click event changes nothing") << event << false << true << 30 << 50 << 50;
}

void tst_Fader::doubleTapResetsToDefault()
{
    QFETCH(QString, input);
    QFETCH(bool, enabled);
    QFETCH(bool, explicitDefault);
    QFETCH(int, defaultValue);
    QFETCH(int, start);
    QFETCH(int, expected);

    Scene scene(Qt::Vertical, -10, 100, start);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));
    scene.fader->setResetOnDoubleTapEnabled(enabled);
    if (explicitDefault)
        scene.fader->setDefaultValue(defaultValue);
    QSignalSpy values(scene.fader, &QSlider::valueChanged);
    QSignalSpy sliding(scene.fader, &Fader::slidingChanged);
    const QPoint center = sliderHandleRect(*scene.fader).center();

    if (input == QLatin1String("double click")) {
        doubleClick(scene.fader, center);
    } else if (input == QLatin1String("double tap")) {
        doubleTap(scene.fader, center);
    } else {
        sendPress(scene.fader, QEvent::MouseButtonDblClick, center, Qt::LeftButton);
        // The handle is held as after any press on it.
        QVERIFY(scene.fader->isSliding());
        QCOMPARE(sliding.count(), 1);
        QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, center);
    }

    QCOMPARE(scene.fader->value(), expected);
    QCOMPARE(values.count(), expected == start ? 0 : 1);
    if (!values.isEmpty())
        QCOMPARE(values.at(0).at(0).toInt(), expected);
    QVERIFY(!scene.fader->isSliding());
    QVERIFY(sliding.count() >= 2);
    QCOMPARE(sliding.first().at(0).toBool(), true);
    QCOMPARE(sliding.last().at(0).toBool(), false);
    QVERIFY(scene.parent.presses.isEmpty());
    QCOMPARE(scene.fader->property("class"), noClass());
    // The default is not changed by applying it.
    QCOMPARE(scene.fader->defaultValue(), explicitDefault ? defaultValue : -10);
    QCOMPARE(pixels(*scene.fader), lookAt(*scene.fader, expected));
}

void tst_Fader::doubleTapBesideTheHandleDoesNothing_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<int>("offset"); // from the handle's centre, along the fader

    QTest::newRow("double click below the handle") << QStringLiteral("double click") << 40;
    QTest::newRow("double click above the handle") << QStringLiteral("double click") << -40;
    QTest::newRow("double tap below the handle") << QStringLiteral("double tap") << 40;
    QTest::newRow("double tap above the handle") << QStringLiteral("double tap") << -40;
}

void tst_Fader::doubleTapBesideTheHandleDoesNothing()
{
    QFETCH(QString, input);
    QFETCH(int, offset);

    Scene scene(Qt::Vertical);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));
    scene.fader->setResetOnDoubleTapEnabled(true);
    scene.fader->setDefaultValue(20);
    QSignalSpy values(scene.fader, &QSlider::valueChanged);
    QSignalSpy sliding(scene.fader, &Fader::slidingChanged);
    const QImage before = pixels(*scene.fader);
    const QPoint point = sliderHandleRect(*scene.fader).center() + QPoint(0, offset);
    QVERIFY(scene.fader->rect().contains(point));
    QVERIFY(!sliderHandleRect(*scene.fader).contains(point));

    if (input == QLatin1String("double click"))
        doubleClick(scene.fader, point);
    else
        doubleTap(scene.fader, point);

    QCOMPARE(scene.fader->value(), 50);
    QCOMPARE(values.count(), 0);
    QVERIFY(!scene.fader->isSliding());
    for (const QList<QVariant> &signal : std::as_const(sliding))
        QCOMPARE(signal.at(0).toBool(), false);
    // The presses went on to the parent, as any press beside the handle does.
    QVERIFY(!scene.parent.presses.isEmpty());
    QCOMPARE(pixels(*scene.fader), before);
}

void tst_Fader::dragAfterResetStartsAtDefault()
{
    Scene scene(Qt::Vertical);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));
    scene.fader->setResetOnDoubleTapEnabled(true);
    scene.fader->setDefaultValue(30);
    QSignalSpy values(scene.fader, &QSlider::valueChanged);
    QSignalSpy sliding(scene.fader, &Fader::slidingChanged);
    const QPoint center = sliderHandleRect(*scene.fader).center();

    sendPress(scene.fader, QEvent::MouseButtonDblClick, center, Qt::LeftButton);
    QCOMPARE(scene.fader->value(), 30);
    QVERIFY(scene.fader->isSliding());
    moveHeld(scene.fader, center + QPoint(0, -11));
    QCOMPARE(scene.fader->value(), 30);
    moveHeld(scene.fader, center + QPoint(0, -30));
    QCOMPARE(scene.fader->value(), 33);
    QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, center + QPoint(0, -30));

    QCOMPARE(values.count(), 2);
    QCOMPARE(values.at(0).at(0).toInt(), 30);
    QCOMPARE(values.at(1).at(0).toInt(), 33);
    QCOMPARE(sliding.count(), 2);
    QCOMPARE(scene.fader->singleStep(), 10);
}

void tst_Fader::fullRangeDragSweepsTheRange_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<bool>("painted"); // whether the style can place the handle over the range

    QTest::newRow("vertical 0 to 100") << Qt::Vertical << 0 << 100 << true;
    QTest::newRow("vertical 0 to 5000") << Qt::Vertical << 0 << 5000 << true;
    QTest::newRow("vertical -150 to 150") << Qt::Vertical << -150 << 150 << true;
    QTest::newRow("vertical 0 to 7, fewer values than pixels") << Qt::Vertical << 0 << 7 << true;
    QTest::newRow("vertical down to half the int range") << Qt::Vertical << INT_MIN / 2 << 0 << true;
    // The style's slider arithmetic overflows on a range of 2^31 or more, so only the values count.
    QTest::newRow("vertical over the int range") << Qt::Vertical << INT_MIN << INT_MAX << false;
    QTest::newRow("horizontal 0 to 5000") << Qt::Horizontal << 0 << 5000 << true;
    QTest::newRow("horizontal -1000 to 1000") << Qt::Horizontal << -1000 << 1000 << true;
}

void tst_Fader::fullRangeDragSweepsTheRange()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(bool, painted);

    Scene scene(orientation, minimum, maximum, minimum);
    // Wide enough for a horizontal groove to be worth dragging along.
    if (orientation == Qt::Horizontal)
        scene.fader->setFixedSize(200, 17);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));
    scene.fader->setDragMode(Fader::FullRangeDrag);
    QSignalSpy values(scene.fader, &QSlider::valueChanged);
    QSignalSpy sliding(scene.fader, &Fader::slidingChanged);
    const Fader &fader = *scene.fader;
    const int span = grooveSpan(fader);
    QVERIFY2(span > 100, qPrintable(QString::number(span)));
    // Where there are fewer values than pixels the handle moves by whole values.
    const double slack = 1 + std::max(0.0, 0.5 * span / (double(maximum) - minimum));

    // Up from the minimum's end of the groove to the maximum's, one pixel at a time.
    QPoint grab = sliderHandleRect(fader).center();
    QTest::mousePress(scene.fader, Qt::LeftButton, {}, grab);
    moveHeld(scene.fader, raisedBy(fader, grab, modeThreshold()));
    QCOMPARE(fader.property("class").toString(), QStringLiteral("fine"));
    QCOMPARE(fader.value(), minimum);
    int previous = minimum;
    for (int raised = 1; raised <= span; ++raised) {
        const QPoint finger = raisedBy(fader, grab, raised);
        moveHeld(scene.fader, finger);
        QVERIFY2(fader.value() >= previous, qPrintable(QStringLiteral("at %1").arg(raised)));
        previous = fader.value();
        // The handle stays under the finger.
        const int offset = along(fader, sliderHandleRect(fader).center()) - along(fader, finger);
        QVERIFY2(!painted || std::abs(offset) <= slack,
                 qPrintable(QStringLiteral("at %1: %2 pixels off").arg(raised).arg(offset)));
    }
    QCOMPARE(fader.value(), maximum);
    moveHeld(scene.fader, raisedBy(fader, grab, span + 30));
    QCOMPARE(fader.value(), maximum);
    QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, raisedBy(fader, grab, span + 30));
    QCOMPARE(values.last().at(0).toInt(), maximum);
    QCOMPARE(sliding.count(), 2);
    if (painted)
        QCOMPARE(pixels(*scene.fader), lookAt(*scene.fader, maximum));

    // And back down in one move.
    grab = sliderHandleRect(fader).center();
    QTest::mousePress(scene.fader, Qt::LeftButton, {}, grab);
    moveHeld(scene.fader, raisedBy(fader, grab, -modeThreshold()));
    QCOMPARE(fader.value(), maximum);
    moveHeld(scene.fader, raisedBy(fader, grab, -span));
    QCOMPARE(fader.value(), minimum);
    moveHeld(scene.fader, raisedBy(fader, grab, -span - 30));
    QCOMPARE(fader.value(), minimum);
    QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, raisedBy(fader, grab, -span - 30));
    QCOMPARE(values.last().at(0).toInt(), minimum);
    QCOMPARE(sliding.count(), 4);
    if (painted)
        QCOMPARE(pixels(*scene.fader), lookAt(*scene.fader, minimum));
    QVERIFY(scene.parent.presses.isEmpty());
}

void tst_Fader::fullRangeDragIsRelativeToTheGrab()
{
    Scene scene(Qt::Vertical, 0, 5000, 2503);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));
    scene.fader->setDragMode(Fader::FullRangeDrag);
    QSignalSpy values(scene.fader, &QSlider::valueChanged);
    const int span = grooveSpan(*scene.fader);
    const QPoint grab = sliderHandleRect(*scene.fader).center();

    QTest::mousePress(scene.fader, Qt::LeftButton, {}, grab);
    // The move that decides the mode changes no value.
    moveHeld(scene.fader, grab + QPoint(0, -11));
    QCOMPARE(scene.fader->value(), 2503);
    // Back at the grab the value is the one grabbed, not the one nearest to the pixel.
    moveHeld(scene.fader, grab);
    QCOMPARE(scene.fader->value(), 2503);
    QCOMPARE(values.count(), 0);
    // One pixel is worth a span's share of the range.
    moveHeld(scene.fader, grab + QPoint(0, -1));
    QCOMPARE(scene.fader->value(), 2503 + qRound(5000.0 / span));
    moveHeld(scene.fader, grab + QPoint(0, 10));
    QCOMPARE(scene.fader->value(), 2503 - qRound(50000.0 / span));
    QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, grab + QPoint(0, 10));
    QCOMPARE(values.count(), 2);
}

void tst_Fader::fullRangeCoarseSnapsToBiggerSteps_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("step");

    // The first of 10, 20, 50, 100, ... worth 10 pixels of a groove of 150 to 199 pixels.
    QTest::newRow("0 to 100 in tens") << 0 << 100 << 10;
    QTest::newRow("0 to 5000 in five hundreds") << 0 << 5000 << 500;
    QTest::newRow("-150 to 150 in twenties") << -150 << 150 << 20;
    QTest::newRow("0 to 2000 in two hundreds") << 0 << 2000 << 200;
    QTest::newRow("down to half the int range in hundred millions") << INT_MIN / 2 << 0 << 100000000;
}

void tst_Fader::fullRangeCoarseSnapsToBiggerSteps()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, step);

    Scene scene(Qt::Vertical, minimum, maximum, minimum);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));
    scene.fader->setDragMode(Fader::FullRangeDrag);
    const Fader &fader = *scene.fader;
    const int span = grooveSpan(fader);
    QVERIFY2(span >= 150 && span < 200, qPrintable(QString::number(span)));
    const double pixelsPerUnit = double(span) / (double(maximum) - minimum);

    // The same sweep in fine mode, then in coarse mode; the largest change between two pixels
    // in fine mode and the changes in coarse mode, ends of the range aside.
    auto sweep = [&](int across, QVector<int> &changes) {
        scene.fader->setValue(minimum);
        const QPoint grab = sliderHandleRect(fader).center();
        QTest::mousePress(scene.fader, Qt::LeftButton, {}, grab);
        moveHeld(scene.fader, across ? grab + QPoint(across, 0) : raisedBy(fader, grab, modeThreshold()));
        int previous = fader.value();
        for (int raised = 1; raised <= span; ++raised) {
            const QPoint finger = raisedBy(fader, grab, raised, across);
            moveHeld(scene.fader, finger);
            const int value = fader.value();
            if (value != previous && previous != minimum && value != maximum)
                changes.append(value - previous);
            if (across) {
                QVERIFY2(value % step == 0 || value == minimum || value == maximum,
                         qPrintable(QStringLiteral("at %1: %2").arg(raised).arg(value)));
                // Within half a step of the finger.
                const int offset = along(fader, sliderHandleRect(fader).center()) - along(fader, finger);
                QVERIFY2(std::abs(offset) <= step / 2 * pixelsPerUnit + 1,
                         qPrintable(QStringLiteral("at %1: %2 pixels off").arg(raised).arg(offset)));
            }
            previous = value;
        }
        QCOMPARE(fader.value(), maximum);
        QCOMPARE(fader.property("class").toString(), across ? QStringLiteral("coarse") : QStringLiteral("fine"));
        QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, raisedBy(fader, grab, span, across));
        QCOMPARE(scene.fader->singleStep(), across ? 5 : 10);
    };

    QVector<int> fine;
    sweep(0, fine);
    QVector<int> coarse;
    QSignalSpy values(scene.fader, &QSlider::valueChanged);
    sweep(12, coarse);
    QVERIFY(!fine.isEmpty());
    QVERIFY(!coarse.isEmpty());
    const int largestFine = *std::max_element(fine.cbegin(), fine.cend());
    QVERIFY2(largestFine < step, qPrintable(QString::number(largestFine)));
    for (int change : std::as_const(coarse))
        QCOMPARE(change, step);
    // Coarse mode reaches a value once for every step of the range at most.
    QVERIFY(values.count() <= (qint64(maximum) - minimum) / step + 3);
}

void tst_Fader::fullRangeDragKeepsTheFaderRules()
{
    Scene scene(Qt::Vertical, 0, 5000, 2500);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));
    scene.fader->setDragMode(Fader::FullRangeDrag);
    QSignalSpy values(scene.fader, &QSlider::valueChanged);
    QSignalSpy sliding(scene.fader, &Fader::slidingChanged);
    const QRect handle = sliderHandleRect(*scene.fader);

    // A press beside the handle does not jump and goes on to the parent.
    const QPoint groove(handle.center().x(), handle.bottom() + 30);
    QTest::mousePress(scene.fader, Qt::LeftButton, {}, groove);
    moveHeld(scene.fader, groove + QPoint(0, -60));
    QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, groove + QPoint(0, -60));
    QCOMPARE(scene.fader->value(), 2500);
    QCOMPARE(scene.parent.presses.size(), 1);
    QCOMPARE(sliding.count(), 1);

    // Ten pixels decide nothing; the eleventh chooses the mode without moving the value.
    const QPoint grab = handle.center();
    QTest::mousePress(scene.fader, Qt::LeftButton, {}, grab);
    moveHeld(scene.fader, grab + QPoint(10, -10));
    QCOMPARE(scene.fader->property("class"), noClass());
    QCOMPARE(scene.fader->value(), 2500);
    moveHeld(scene.fader, grab + QPoint(10, -11));
    QCOMPARE(scene.fader->property("class").toString(), QStringLiteral("fine"));
    QCOMPARE(scene.fader->value(), 2500);
    QCOMPARE(values.count(), 0);
    moveHeld(scene.fader, grab + QPoint(10, -40));
    QVERIFY(scene.fader->value() > 2500);
    QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, grab + QPoint(10, -40));
    QCOMPARE(scene.fader->property("class"), noClass());
    QCOMPARE(scene.fader->singleStep(), 10);
    QCOMPARE(sliding.count(), 3);

    // The wheel still moves nothing.
    const int value = scene.fader->value();
    sendWheel(scene.fader, sliderHandleRect(*scene.fader).center(), 120);
    QCOMPARE(scene.fader->value(), value);
}

void tst_Fader::dragModeSwitchesBack()
{
    Scene scene(Qt::Vertical);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.parent));
    scene.fader->setDragMode(Fader::FullRangeDrag);
    scene.fader->setDragMode(Fader::StepDrag);
    const QPoint grab = sliderHandleRect(*scene.fader).center();
    QTest::mousePress(scene.fader, Qt::LeftButton, {}, grab);
    moveHeld(scene.fader, grab + QPoint(0, -11));
    moveHeld(scene.fader, grab + QPoint(0, -30));
    QCOMPARE(scene.fader->value(), 53);

    // A change during a drag applies from the next move on.
    scene.fader->setDragMode(Fader::FullRangeDrag);
    moveHeld(scene.fader, grab + QPoint(0, -31));
    const int span = grooveSpan(*scene.fader);
    QCOMPARE(scene.fader->value(), 50 + qRound(31 * 100.0 / span));
    QTest::mouseRelease(scene.fader, Qt::LeftButton, {}, grab + QPoint(0, -31));
}

QTEST_MAIN(tst_Fader)
#include "tst_Fader.moc"
