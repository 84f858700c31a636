// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/listWithButtons/NavigatorButton.h>
#include <ko/qtToolkit/widget/ListWidget.h>
#include <ko/qtToolkit/widget/listWithButtons/WidgetBase.h>

#include <TestSupport.h>

#include <QBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

using ko::qtToolkit::widget::listWithButtons::Direction;
using ko::qtToolkit::widget::listWithButtons::NavigatorButton;
using ko::qtToolkit::widget::ListWidget;
using ko::qtToolkit::widget::listWithButtons::WidgetBase;

Q_DECLARE_METATYPE(Direction)
Q_DECLARE_METATYPE(QBoxLayout::Direction)

namespace {

NavigatorButton *buttonWithId(const QWidget &widget, const QString &testId)
{
    const auto buttons = widget.findChildren<NavigatorButton *>();
    for (NavigatorButton *button : buttons) {
        if (button->property("TestID").toString() == testId)
            return button;
    }
    return nullptr;
}

void fill(WidgetBase &widget, int rows)
{
    for (int row = 0; row < rows; ++row) {
        auto *button = new QPushButton(QStringLiteral("Preset %1").arg(row));
        button->setCheckable(true);
        widget.addItem(button);
    }
}

// A shown list with navigator buttons.
struct Fixture
{
    explicit Fixture(Direction direction)
        : widget(QStringLiteral("Items"), direction)
    {
        if (direction == Direction::Horizontal) {
            widget.getList()->setFlow(QListView::LeftToRight);
            widget.resize(500, 60);
        } else {
            widget.resize(120, 200);
        }
        previous = buttonWithId(widget, QStringLiteral("Items.PrevButton"));
        next = buttonWithId(widget, QStringLiteral("Items.NextButton"));
        scrollBar = direction == Direction::Horizontal ? widget.getList()->horizontalScrollBar()
                                                       : widget.getList()->verticalScrollBar();
        widget.show();
    }

    // Adds rows until the list scrolls.
    bool addRowsUntilScrolling()
    {
        fill(widget, 30);
        return QTest::qWaitFor([this] { return scrollBar->maximum() > 0; });
    }

    // Removes rows until the two left all fit.
    bool removeRowsUntilAllFit()
    {
        while (widget.count() > 2)
            widget.removeItem(qobject_cast<QAbstractButton *>(widget.widget(widget.count() - 1)));
        return QTest::qWaitFor([this] { return scrollBar->maximum() == 0; });
    }

    WidgetBase widget;
    NavigatorButton *previous = nullptr;
    NavigatorButton *next = nullptr;
    QScrollBar *scrollBar = nullptr;
};

} // namespace

class tst_WidgetBase : public QObject
{
    Q_OBJECT

private:
    void directions()
    {
        QTest::addColumn<Direction>("direction");
        QTest::newRow("horizontal") << Direction::Horizontal;
        QTest::newRow("vertical") << Direction::Vertical;
    }

private Q_SLOTS:
    void structure_data()
    {
        QTest::addColumn<Direction>("direction");
        QTest::addColumn<QBoxLayout::Direction>("layoutDirection");
        QTest::addColumn<QString>("previousArrow");
        QTest::addColumn<QString>("nextArrow");
        QTest::newRow("horizontal") << Direction::Horizontal << QBoxLayout::LeftToRight << QStringLiteral("left")
                                    << QStringLiteral("right");
        QTest::newRow("vertical") << Direction::Vertical << QBoxLayout::TopToBottom << QStringLiteral("up")
                                  << QStringLiteral("down");
        QTest::newRow("unknown value acts as vertical")
            << static_cast<Direction>(0) << QBoxLayout::TopToBottom << QStringLiteral("up") << QStringLiteral("down");
    }

    void structure()
    {
        QFETCH(Direction, direction);
        QFETCH(QBoxLayout::Direction, layoutDirection);
        QFETCH(QString, previousArrow);
        QFETCH(QString, nextArrow);
        WidgetBase widget(QStringLiteral("Items"), direction);

        QCOMPARE(widget.property("TestID").toString(), QStringLiteral("ItemsWrapper"));
        QCOMPARE(widget.getList()->property("TestID").toString(), QStringLiteral("Items"));
        NavigatorButton *previous = buttonWithId(widget, QStringLiteral("Items.PrevButton"));
        NavigatorButton *next = buttonWithId(widget, QStringLiteral("Items.NextButton"));
        QVERIFY(previous);
        QVERIFY(next);
        QCOMPARE(previous->parentWidget(), &widget);
        QCOMPARE(previous->property("arrowType").toString(), previousArrow);
        QCOMPARE(next->property("arrowType").toString(), nextArrow);

        auto *layout = qobject_cast<QBoxLayout *>(widget.layout());
        QVERIFY(layout);
        QCOMPARE(layout->direction(), layoutDirection);
        QCOMPARE(bool(qobject_cast<QHBoxLayout *>(layout)), direction == Direction::Horizontal);
        QCOMPARE(layout->count(), 3);
        QCOMPARE(layout->itemAt(0)->widget(), previous);
        QCOMPARE(layout->itemAt(1)->widget(), widget.getList());
        QCOMPARE(layout->itemAt(2)->widget(), next);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(layout->stretch(i), 0);
        QCOMPARE(layout->contentsMargins(), QMargins());
        QCOMPARE(layout->spacing(), 0);
    }

    void buttonsDriveScrollBarOfDirection_data() { directions(); }

    void buttonsDriveScrollBarOfDirection()
    {
        QFETCH(Direction, direction);
        Fixture fixture(direction);
        QVERIFY(fixture.addRowsUntilScrolling());
        QScrollBar *other = direction == Direction::Horizontal ? fixture.widget.getList()->verticalScrollBar()
                                                               : fixture.widget.getList()->horizontalScrollBar();
        QCOMPARE(fixture.scrollBar->value(), 0);

        // At the top: previous disabled, next enabled.
        QVERIFY(!fixture.previous->isEnabled());
        QVERIFY(fixture.next->isEnabled());
        const int step = fixture.scrollBar->singleStep();
        QTest::mouseClick(fixture.next, Qt::LeftButton);
        QCOMPARE(fixture.scrollBar->value(), step);
        QVERIFY(fixture.previous->isEnabled());
        QCOMPARE(other->value(), 0);

        QTest::mouseClick(fixture.previous, Qt::LeftButton);
        QCOMPARE(fixture.scrollBar->value(), 0);
        QVERIFY(!fixture.previous->isEnabled());

        // At the end: next disabled.
        while (fixture.next->isEnabled())
            QTest::mouseClick(fixture.next, Qt::LeftButton);
        QCOMPARE(fixture.scrollBar->value(), fixture.scrollBar->maximum());
        QVERIFY(fixture.previous->isEnabled());
    }

    // A list whose scroll bar the application replaces deletes the old one: the buttons drive
    // the new one from then on.
    void buttonsFollowReplacedScrollBar_data() { directions(); }

    void buttonsFollowReplacedScrollBar()
    {
        QFETCH(Direction, direction);
        Fixture fixture(direction);
        QVERIFY(fixture.addRowsUntilScrolling());
        ListWidget *list = fixture.widget.getList();
        QPointer<QScrollBar> old(fixture.scrollBar);
        auto *replacement = new QScrollBar;
        if (direction == Direction::Horizontal)
            list->setHorizontalScrollBar(replacement);
        else
            list->setVerticalScrollBar(replacement);
        QVERIFY(old.isNull());
        // The buttons take up the new scroll bar once the deletion of the old one is over.
        QCoreApplication::processEvents();
        QVERIFY(replacement->maximum() > 0);
        QVERIFY(fixture.next->isEnabled());
        QVERIFY(!fixture.previous->isEnabled());

        const int before = replacement->value();
        QTest::mouseClick(fixture.next, Qt::LeftButton);
        QCOMPARE(replacement->value(), before + replacement->singleStep());
        QVERIFY(fixture.previous->isEnabled());
        replacement->setValue(replacement->maximum());
        QVERIFY(!fixture.next->isEnabled());
        QTest::mouseClick(fixture.previous, Qt::LeftButton);
        QCOMPARE(replacement->value(), replacement->maximum() - replacement->singleStep());
    }

    void allRowsVisibleDisablesButtons_data() { directions(); }

    void allRowsVisibleDisablesButtons()
    {
        QFETCH(Direction, direction);
        Fixture fixture(direction);
        QVERIFY(fixture.addRowsUntilScrolling());
        QVERIFY(fixture.next->isEnabled());
        QVERIFY(fixture.removeRowsUntilAllFit());
        QCOMPARE(fixture.scrollBar->minimum(), 0);
        QVERIFY(!fixture.previous->isEnabled());
        QVERIFY(!fixture.next->isEnabled());
        QVERIFY(fixture.previous->isVisible());
        QVERIFY(fixture.next->isVisible());
    }

    void flagHidesButtonsUntilListScrolls_data() { directions(); }

    void flagHidesButtonsUntilListScrolls()
    {
        QFETCH(Direction, direction);
        Fixture fixture(direction);
        fill(fixture.widget, 2);
        QTest::qWait(0);
        QCOMPARE(fixture.scrollBar->maximum(), 0);

        // Not at once: the buttons stay until the scroll bar next changes.
        fixture.previous->setHideIfScrollBarWouldHide(true);
        fixture.next->setHideIfScrollBarWouldHide(true);
        QTest::qWait(0);
        QVERIFY(fixture.previous->isVisible());
        QVERIFY(fixture.next->isVisible());

        // Enough rows to scroll: shown; back to rows that all fit: hidden.
        QVERIFY(fixture.addRowsUntilScrolling());
        QVERIFY(fixture.previous->isVisible());
        QVERIFY(fixture.next->isVisible());
        QVERIFY(fixture.removeRowsUntilAllFit());
        QVERIFY(!fixture.previous->isVisible());
        QVERIFY(!fixture.next->isVisible());

        QVERIFY(fixture.addRowsUntilScrolling());
        QVERIFY(fixture.next->isVisible());
        QVERIFY(fixture.previous->isVisible());
    }

    void styleSheetSizesButtons_data()
    {
        QTest::addColumn<Direction>("direction");
        QTest::addColumn<bool>("fixedWidth");
        QTest::newRow("horizontal") << Direction::Horizontal << true;
        QTest::newRow("vertical") << Direction::Vertical << false;
    }

    void styleSheetSizesButtons()
    {
        QFETCH(Direction, direction);
        QFETCH(bool, fixedWidth);
        const QString sheet = ko::qtToolkit::test::toolkitStyleSheet();
        QVERIFY(!sheet.isEmpty());
        Fixture fixture(direction);
        fixture.widget.setStyleSheet(sheet);
        fixture.widget.resize(300, 300);
        QTRY_COMPARE(fixedWidth ? fixture.next->width() : fixture.next->height(), 26);
        QCOMPARE(fixedWidth ? fixture.previous->width() : fixture.previous->height(), 26);
        // Across the list the buttons span it.
        QCOMPARE(fixedWidth ? fixture.next->height() : fixture.next->width(), 300);
    }

    // The usual order: the application applies the sheet at start-up, before any list exists.
    void styleSheetAppliedBeforeConstructionSizesButtons_data() { styleSheetSizesButtons_data(); }

    void styleSheetAppliedBeforeConstructionSizesButtons()
    {
        QFETCH(Direction, direction);
        QFETCH(bool, fixedWidth);
        qApp->setStyleSheet(ko::qtToolkit::test::toolkitStyleSheet());
        {
            Fixture fixture(direction);
            fixture.widget.resize(300, 300);
            QTRY_COMPARE(fixedWidth ? fixture.next->width() : fixture.next->height(), 26);
            QCOMPARE(fixedWidth ? fixture.previous->width() : fixture.previous->height(), 26);
            // The arrow is drawn: the button is not blank.
            const QImage image = fixture.next->grab().toImage();
            QVERIFY(image.pixelColor(image.width() / 2, image.height() / 2) != image.pixelColor(0, 0));
        }
        qApp->setStyleSheet(QString());
    }

    void destroyingWithRowsCleansUp()
    {
        auto widget = std::make_unique<WidgetBase>(QStringLiteral("Items"), Direction::Vertical);
        fill(*widget, 30);
        widget->setCurrentRow(3);
        QPointer<QWidget> row = widget->widget(3);
        QPointer<NavigatorButton> next = buttonWithId(*widget, QStringLiteral("Items.NextButton"));
        widget->show();
        QTest::qWait(0);
        widget.reset();
        QVERIFY(row.isNull());
        QVERIFY(next.isNull());
    }
};

QTEST_MAIN(tst_WidgetBase)
#include "tst_WidgetBase.moc"
