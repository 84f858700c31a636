// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/listWithButtons/NavigatorButton.h>

#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <memory>

using ko::qtToolkit::widget::listWithButtons::Direction;
using ko::qtToolkit::widget::listWithButtons::NavigatorButton;

Q_DECLARE_METATYPE(Direction)

namespace {

// A shown window holding a scroll bar (0 to 10, single step 1) and one button that adds 3 per
// press and stops at \c limitValue.
class Fixture
{
public:
    explicit Fixture(Direction direction = Direction::Vertical)
    {
        scrollBar = new QScrollBar(Qt::Vertical, &window);
        scrollBar->setRange(0, 10);
        button = new NavigatorButton(QStringLiteral("Nav"), *scrollBar, specifics(direction), &window);
        window.show();
    }

    NavigatorButton::DirectionSpecifics specifics(Direction direction)
    {
        return {direction, [this](QScrollBar &bar) {
                    ++presses;
                    bar.setValue(bar.value() + 3);
                },
                [this](QScrollBar &) { return limitValue; }};
    }

    QWidget window;
    QScrollBar *scrollBar = nullptr;
    NavigatorButton *button = nullptr;
    int limitValue = 10;
    int presses = 0;
};

} // namespace

class tst_NavigatorButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construction()
    {
        Fixture fixture;
        NavigatorButton *button = fixture.button;
        QCOMPARE(button->property("TestID").toString(), QStringLiteral("Nav"));
        QCOMPARE(button->parentWidget(), &fixture.window);
        QCOMPARE(button->focusPolicy(), Qt::NoFocus);
        QVERIFY(!button->property("arrowType").isValid());
        QVERIFY(button->isEnabled());
        QVERIFY(button->isVisible());
        // The style sheet matches both kinds of button by this name.
        QCOMPARE(QLatin1String(button->metaObject()->className()),
                 QLatin1String("ko::qtToolkit::widget::listWithButtons::NavigatorButton"));
    }

    void sizePolicy_data()
    {
        QTest::addColumn<Direction>("direction");
        QTest::addColumn<QSizePolicy::Policy>("horizontal");
        QTest::addColumn<QSizePolicy::Policy>("vertical");
        QTest::newRow("horizontal") << Direction::Horizontal << QSizePolicy::Preferred << QSizePolicy::Expanding;
        QTest::newRow("vertical") << Direction::Vertical << QSizePolicy::Expanding << QSizePolicy::Preferred;
        QTest::newRow("unknown value acts as vertical")
            << static_cast<Direction>(0) << QSizePolicy::Expanding << QSizePolicy::Preferred;
    }

    void sizePolicy()
    {
        QFETCH(Direction, direction);
        QFETCH(QSizePolicy::Policy, horizontal);
        QFETCH(QSizePolicy::Policy, vertical);
        Fixture fixture(direction);
        QCOMPARE(fixture.button->sizePolicy().horizontalPolicy(), horizontal);
        QCOMPARE(fixture.button->sizePolicy().verticalPolicy(), vertical);
    }

    void pressScrolls()
    {
        Fixture fixture;
        QTest::mouseClick(fixture.button, Qt::LeftButton);
        QCOMPARE(fixture.presses, 1);
        QCOMPARE(fixture.scrollBar->value(), 3);
        QTest::mouseClick(fixture.button, Qt::LeftButton);
        QCOMPARE(fixture.scrollBar->value(), 6);
    }

    void enabledExactlyAwayFromLimit()
    {
        Fixture fixture;
        fixture.scrollBar->setValue(9);
        QVERIFY(fixture.button->isEnabled());
        fixture.scrollBar->setValue(10);
        QVERIFY(!fixture.button->isEnabled());
        // Disabled at the limit, a press does nothing more.
        QTest::mouseClick(fixture.button, Qt::LeftButton);
        QCOMPARE(fixture.presses, 0);
        fixture.scrollBar->setValue(2);
        QVERIFY(fixture.button->isEnabled());
    }

    void rangeChangeUpdates()
    {
        Fixture fixture;
        fixture.limitValue = 4;
        fixture.scrollBar->setRange(0, 4);   // the value is 0: enabled
        QVERIFY(fixture.button->isEnabled());
        fixture.scrollBar->setRange(4, 8);   // the value is clamped to 4: disabled
        QVERIFY(!fixture.button->isEnabled());
    }

    void changeEnabledStateAsksTheLimitAgain()
    {
        Fixture fixture;
        fixture.limitValue = 0;
        QVERIFY(fixture.button->isEnabled()); // nothing has told the button yet
        fixture.button->changeEnabledState();
        QVERIFY(!fixture.button->isEnabled());
    }

    void clearedFlagShowsButtonEveryTime()
    {
        Fixture fixture;
        fixture.scrollBar->setRange(0, 0);
        QVERIFY(fixture.button->isVisible());
        fixture.button->hide();
        fixture.scrollBar->setRange(0, 5);
        QVERIFY(fixture.button->isVisible());
        fixture.button->hide();
        fixture.button->showOrHideNavigatorIfNeeded();
        QVERIFY(fixture.button->isVisible());
    }

    void flagHidesButtonWithoutRange()
    {
        Fixture fixture;
        fixture.scrollBar->setRange(0, 0);
        fixture.button->setHideIfScrollBarWouldHide(true);
        QVERIFY(fixture.button->isVisible()); // not at once
        fixture.button->showOrHideNavigatorIfNeeded();
        QVERIFY(!fixture.button->isVisible());
        fixture.scrollBar->setRange(0, 1);
        QVERIFY(fixture.button->isVisible());
        fixture.scrollBar->setRange(3, 3);
        QVERIFY(!fixture.button->isVisible());

        fixture.button->setHideIfScrollBarWouldHide(false);
        QVERIFY(!fixture.button->isVisible()); // not at once either
        fixture.button->updateNavigator();
        QVERIFY(fixture.button->isVisible());
    }

    void flagTakesEffectAtNextValueChange()
    {
        Fixture fixture;
        fixture.button->hide();
        fixture.button->setHideIfScrollBarWouldHide(true);
        QVERIFY(!fixture.button->isVisible());
        fixture.scrollBar->setValue(1); // there is a range: shown
        QVERIFY(fixture.button->isVisible());
    }

    void emptyLimitThrows()
    {
        QScrollBar scrollBar;
        QWidget parent;
        NavigatorButton::DirectionSpecifics specifics{Direction::Vertical, [](QScrollBar &) {}, {}};
        std::unique_ptr<NavigatorButton> button;
        QVERIFY_EXCEPTION_THROWN(
            button.reset(new NavigatorButton(QStringLiteral("Nav"), scrollBar, specifics, &parent)),
            std::bad_function_call);
        QVERIFY(!button);
        QVERIFY(parent.children().isEmpty());
    }

    // A scroll bar of no scroll area has nothing to be replaced by: once it is gone the button
    // stays disabled and a press does nothing.
    void deletedScrollBarOfNoAreaDisablesButton()
    {
        Fixture fixture;
        fixture.scrollBar->setRange(0, 20);
        QVERIFY(fixture.button->isEnabled());
        delete fixture.scrollBar;
        fixture.scrollBar = nullptr;
        QTRY_VERIFY(!fixture.button->isEnabled());
        fixture.button->updateNavigator();
        QVERIFY(!fixture.button->isEnabled());
        QCOMPARE(fixture.presses, 0);
    }

    void destroyingButtonLeavesScrollBarAlone()
    {
        Fixture fixture;
        delete fixture.button;
        fixture.scrollBar->setRange(0, 20);
        fixture.scrollBar->setValue(7);
        QCOMPARE(fixture.scrollBar->value(), 7);
    }
};

QTEST_MAIN(tst_NavigatorButton)
#include "tst_NavigatorButton.moc"
