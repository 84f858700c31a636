#include <ko/qtToolkit/widget/listWithButtons/NavigatorButtonPrevious.h>

#include <QScrollBar>
#include <QTest>

using ko::qtToolkit::widget::listWithButtons::Direction;
using ko::qtToolkit::widget::listWithButtons::NavigatorButton;
using ko::qtToolkit::widget::listWithButtons::NavigatorButtonPrevious;

Q_DECLARE_METATYPE(Direction)

class tst_NavigatorButtonPrevious : public QObject
{
    Q_OBJECT

private:
    void directions()
    {
        QTest::addColumn<Direction>("direction");
        QTest::addColumn<QString>("arrowType");
        QTest::newRow("horizontal") << Direction::Horizontal << QStringLiteral("left");
        QTest::newRow("vertical") << Direction::Vertical << QStringLiteral("up");
        QTest::newRow("unknown value acts as vertical") << static_cast<Direction>(0) << QStringLiteral("up");
    }

private Q_SLOTS:
    void specifics_data() { directions(); }

    void specifics()
    {
        QFETCH(Direction, direction);
        NavigatorButton::DirectionSpecifics specifics = NavigatorButtonPrevious::makeDirectionSpecifics(direction);
        QCOMPARE(specifics.direction, direction);
        QVERIFY(specifics.scroll);
        QVERIFY(specifics.limit);

        QScrollBar scrollBar;
        scrollBar.setRange(-5, 20);
        scrollBar.setSingleStep(3);
        scrollBar.setPageStep(8);
        scrollBar.setValue(4);
        QCOMPARE(specifics.limit(scrollBar), -5);
        specifics.scroll(scrollBar);
        QCOMPARE(scrollBar.value(), 1); // one single step, not a page
        scrollBar.setValue(-4);
        specifics.scroll(scrollBar);
        QCOMPARE(scrollBar.value(), -5);
    }

    void construction_data() { directions(); }

    void construction()
    {
        QFETCH(Direction, direction);
        QFETCH(QString, arrowType);
        QWidget window;
        QScrollBar scrollBar;
        NavigatorButtonPrevious button(QStringLiteral("List.PrevButton"), direction, scrollBar, &window);
        QCOMPARE(button.property("arrowType").toString(), arrowType);
        QCOMPARE(button.property("TestID").toString(), QStringLiteral("List.PrevButton"));
        QCOMPARE(button.sizePolicy().verticalPolicy() == QSizePolicy::Expanding, direction == Direction::Horizontal);
    }

    void disabledAtMinimum()
    {
        QWidget window;
        auto *scrollBar = new QScrollBar(Qt::Horizontal, &window);
        scrollBar->setRange(0, 3);
        scrollBar->setValue(3);
        auto *button = new NavigatorButtonPrevious(QStringLiteral("Prev"), Direction::Horizontal, *scrollBar, &window);
        window.show();
        QVERIFY(button->isEnabled());
        for (int value = 2; value >= 0; --value) {
            QTest::mouseClick(button, Qt::LeftButton);
            QCOMPARE(scrollBar->value(), value);
        }
        QVERIFY(!button->isEnabled());
        scrollBar->setRange(0, 0);
        QVERIFY(!button->isEnabled());
    }
};

QTEST_MAIN(tst_NavigatorButtonPrevious)
#include "tst_NavigatorButtonPrevious.moc"
