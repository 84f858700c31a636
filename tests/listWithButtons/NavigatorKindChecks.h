// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_TESTS_NAVIGATORKINDCHECKS_H
#define KO_QTTOOLKIT_TESTS_NAVIGATORKINDCHECKS_H

// Checks shared by the tests of the two kinds of navigator button, which differ in their arrows
// and in the end of the scroll bar they move towards.

#include <ko/qtToolkit/widget/listWithButtons/NavigatorButton.h>

#include <QScrollBar>
#include <QTest>

#include <functional>

Q_DECLARE_METATYPE(ko::qtToolkit::widget::listWithButtons::Direction)

namespace navigatorKind {

using ko::qtToolkit::widget::listWithButtons::Direction;
using ko::qtToolkit::widget::listWithButtons::NavigatorButton;

struct Kind
{
    QString horizontalArrow;
    QString verticalArrow;
    int towards; // +1: towards the scroll bar's maximum, -1: towards its minimum
    std::function<NavigatorButton::DirectionSpecifics(Direction)> makeDirectionSpecifics;
    std::function<NavigatorButton *(const QString &, Direction, QScrollBar &, QWidget *)> create;
};

inline void directionsData(const Kind &kind)
{
    QTest::addColumn<Direction>("direction");
    QTest::addColumn<QString>("arrowType");
    QTest::newRow("horizontal") << Direction::Horizontal << kind.horizontalArrow;
    QTest::newRow("vertical") << Direction::Vertical << kind.verticalArrow;
    QTest::newRow("unknown value acts as vertical") << static_cast<Direction>(7) << kind.verticalArrow;
}

// One press moves by a single step, never past the limit; the limit is the end it moves to.
inline void checkSpecifics(const Kind &kind)
{
    QFETCH(Direction, direction);
    const NavigatorButton::DirectionSpecifics specifics = kind.makeDirectionSpecifics(direction);
    QCOMPARE(specifics.direction, direction);
    QVERIFY(specifics.scroll);
    QVERIFY(specifics.limit);

    QScrollBar scrollBar;
    scrollBar.setRange(-5, 20);
    scrollBar.setSingleStep(2);
    scrollBar.setPageStep(7);
    scrollBar.setValue(4);
    const int limit = kind.towards > 0 ? 20 : -5;
    QCOMPARE(specifics.limit(scrollBar), limit);
    specifics.scroll(scrollBar);
    QCOMPARE(scrollBar.value(), 4 + 2 * kind.towards);
    scrollBar.setValue(limit - kind.towards);
    specifics.scroll(scrollBar);
    QCOMPARE(scrollBar.value(), limit);
}

inline void checkConstruction(const Kind &kind)
{
    QFETCH(Direction, direction);
    QFETCH(QString, arrowType);
    QScrollBar scrollBar;
    QWidget window;
    NavigatorButton *button = kind.create(QStringLiteral("List.Button"), direction, scrollBar, &window);
    QCOMPARE(button->parentWidget(), &window);
    QCOMPARE(button->property("arrowType").toString(), arrowType);
    QCOMPARE(button->property("TestID").toString(), QStringLiteral("List.Button"));
    QCOMPARE(button->sizePolicy().verticalPolicy() == QSizePolicy::Expanding, direction == Direction::Horizontal);
}

// Presses move the value to the end of the range, where the button is disabled.
inline void checkDisabledAtLimit(const Kind &kind)
{
    QWidget window;
    auto *scrollBar = new QScrollBar(Qt::Vertical, &window);
    scrollBar->setRange(0, 3);
    const int start = kind.towards > 0 ? 0 : 3;
    scrollBar->setValue(start);
    NavigatorButton *button = kind.create(QStringLiteral("Button"), Direction::Vertical, *scrollBar, &window);
    window.show();
    QVERIFY(button->isEnabled());
    for (int press = 1; press <= 3; ++press) {
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(scrollBar->value(), start + press * kind.towards);
    }
    QVERIFY(!button->isEnabled());
    scrollBar->setRange(0, 0);
    QVERIFY(!button->isEnabled());
}

} // namespace navigatorKind

#endif
