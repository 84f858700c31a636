#include <ko/qtToolkit/widget/listWithButtons/NavigatorButtonNext.h>

#include <QScrollBar>
#include <QTest>

using ko::qtToolkit::widget::listWithButtons::Direction;
using ko::qtToolkit::widget::listWithButtons::NavigatorButton;
using ko::qtToolkit::widget::listWithButtons::NavigatorButtonNext;

Q_DECLARE_METATYPE(Direction)

class tst_NavigatorButtonNext : public QObject
{
    Q_OBJECT

private:
    void directions()
    {
        QTest::addColumn<Direction>("direction");
        QTest::addColumn<QString>("arrowType");
        QTest::newRow("horizontal") << Direction::Horizontal << QStringLiteral("right");
        QTest::newRow("vertical") << Direction::Vertical << QStringLiteral("down");
        QTest::newRow("unknown value acts as vertical") << static_cast<Direction>(7) << QStringLiteral("down");
    }

private Q_SLOTS:
    void specifics_data() { directions(); }

    void specifics()
    {
        QFETCH(Direction, direction);
        NavigatorButton::DirectionSpecifics specifics = NavigatorButtonNext::makeDirectionSpecifics(direction);
        QCOMPARE(specifics.direction, direction);
        QVERIFY(specifics.scroll);
        QVERIFY(specifics.limit);

        QScrollBar scrollBar;
        scrollBar.setRange(-5, 20);
        scrollBar.setSingleStep(2);
        scrollBar.setPageStep(7);
        scrollBar.setValue(4);
        QCOMPARE(specifics.limit(scrollBar), 20);
        specifics.scroll(scrollBar);
        QCOMPARE(scrollBar.value(), 6); // one single step, not a page
        scrollBar.setValue(19);
        specifics.scroll(scrollBar);
        QCOMPARE(scrollBar.value(), 20);
    }

    void construction_data() { directions(); }

    void construction()
    {
        QFETCH(Direction, direction);
        QFETCH(QString, arrowType);
        QWidget window;
        QScrollBar scrollBar;
        NavigatorButtonNext button(QStringLiteral("List.NextButton"), direction, scrollBar, &window);
        QCOMPARE(button.property("arrowType").toString(), arrowType);
        QCOMPARE(button.property("TestID").toString(), QStringLiteral("List.NextButton"));
        QCOMPARE(button.sizePolicy().verticalPolicy() == QSizePolicy::Expanding, direction == Direction::Horizontal);
    }

    void disabledAtMaximum()
    {
        QWidget window;
        auto *scrollBar = new QScrollBar(Qt::Vertical, &window);
        scrollBar->setRange(0, 3);
        auto *button = new NavigatorButtonNext(QStringLiteral("Next"), Direction::Vertical, *scrollBar, &window);
        window.show();
        QVERIFY(button->isEnabled());
        for (int value = 1; value <= 3; ++value) {
            QTest::mouseClick(button, Qt::LeftButton);
            QCOMPARE(scrollBar->value(), value);
        }
        QVERIFY(!button->isEnabled());
        scrollBar->setRange(0, 0);
        QVERIFY(!button->isEnabled());
    }
};

QTEST_MAIN(tst_NavigatorButtonNext)
#include "tst_NavigatorButtonNext.moc"
