// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/HeaderViewWidget_p.h>
#include <ko/qtToolkit/widget/TableWidget.h>

#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include <memory>

using ko::qtToolkit::widget::HeaderViewWidget;
using ko::qtToolkit::widget::TableWidget;

namespace {

// Column heads 90 by 32, row heads 60 by 28.
class Table : public TableWidget
{
public:
    using TableWidget::TableWidget;

    QSize headerSectionSize(Qt::Orientation orientation) const override
    {
        return orientation == Qt::Horizontal ? columnHead : rowHead;
    }

    QSize columnHead{90, 32};
    QSize rowHead{60, 28};
};

const QRect untouched(-500, -500, 7, 7);

// Where a section's widget belongs: across the whole header, along the section.
QRect sectionRect(const QHeaderView *header, int section)
{
    const int position = header->sectionViewportPosition(section);
    const int size = header->sectionSize(section);
    return header->orientation() == Qt::Horizontal ? QRect(position, 0, size, header->height())
                                                   : QRect(0, position, header->width(), size);
}

// A shown table of 6 columns and 30 rows scrolled per pixel, with a button in every column head
// and a caption in every row head, set before it was shown.
struct Fixture
{
    Fixture()
    {
        table.setColumnCount(6);
        table.setRowCount(30);
        table.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
        table.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        for (int column = 0; column < 6; ++column)
            table.setWidgetForHeaderSection(column, Qt::Horizontal, new QPushButton(QStringLiteral("C%1").arg(column)));
        for (int row = 0; row < 30; ++row)
            table.setWidgetForHeaderSection(row, Qt::Vertical, new QLineEdit(QStringLiteral("Row %1").arg(row)));
        table.resize(400, 300);
        table.show();
    }

    QWidget *column(int section) const { return table.widgetForHeaderSection(section, Qt::Horizontal); }
    QWidget *row(int section) const { return table.widgetForHeaderSection(section, Qt::Vertical); }

    static int count(Qt::Orientation orientation) { return orientation == Qt::Horizontal ? 6 : 30; }

    // Where a head widget belongs before any scrolling, resizing or moving.
    static QRect headRect(Qt::Orientation orientation, int section)
    {
        return orientation == Qt::Horizontal ? QRect(90 * section, 0, 90, 32) : QRect(0, 28 * section, 60, 28);
    }

    void markAll(Qt::Orientation orientation)
    {
        for (int section = 0; section < count(orientation); ++section)
            table.widgetForHeaderSection(section, orientation)->setGeometry(untouched);
    }

    Table table;
};

} // namespace

class tst_TableWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        Table table;
        auto *horizontal = dynamic_cast<HeaderViewWidget *>(table.horizontalHeader());
        auto *vertical = dynamic_cast<HeaderViewWidget *>(table.verticalHeader());
        QVERIFY(horizontal);
        QVERIFY(vertical);
        QCOMPARE(horizontal->orientation(), Qt::Horizontal);
        QCOMPARE(vertical->orientation(), Qt::Vertical);
        QCOMPARE(horizontal->parentWidget(), &table);
        QCOMPARE(vertical->parentWidget(), &table);
        QCOMPARE(table.topLeftCornerWidget(), nullptr);
        QCOMPARE(table.widgetForHeaderSection(0, Qt::Horizontal), nullptr);
        QCOMPARE(table.widgetForHeaderSection(0, Qt::Vertical), nullptr);
    }

    void headersAreAsThickAsTheTableSays()
    {
        Table table;
        table.setRowCount(3);
        table.setColumnCount(3);
        table.show();
        QVERIFY(QTest::qWaitForWindowExposed(&table));
        QCOMPARE(table.horizontalHeader()->sizeHint(), QSize(90, 32));
        QCOMPARE(table.verticalHeader()->sizeHint(), QSize(60, 28));
        QCOMPARE(table.horizontalHeader()->height(), 32);
        QCOMPARE(table.verticalHeader()->width(), 60);
    }

    void sectionWidgetSetsDefaultSectionSize()
    {
        Table table;
        table.setRowCount(4);
        table.setColumnCount(4);
        table.setWidgetForHeaderSection(1, Qt::Horizontal, new QPushButton);
        QCOMPARE(table.horizontalHeader()->defaultSectionSize(), 90);
        for (int column = 0; column < 4; ++column)
            QCOMPARE(table.columnWidth(column), 90);
        table.setWidgetForHeaderSection(1, Qt::Vertical, new QPushButton);
        QCOMPARE(table.verticalHeader()->defaultSectionSize(), 28);
        for (int row = 0; row < 4; ++row)
            QCOMPARE(table.rowHeight(row), 28);
    }

    void widgetGoesToItsHeader_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::newRow("column head") << Qt::Horizontal;
        QTest::newRow("row head") << Qt::Vertical;
    }

    void widgetGoesToItsHeader()
    {
        QFETCH(Qt::Orientation, orientation);
        Table table;
        table.setRowCount(3);
        table.setColumnCount(3);
        auto *widget = new QPushButton;
        table.setWidgetForHeaderSection(2, orientation, widget);
        QHeaderView *header = orientation == Qt::Horizontal ? table.horizontalHeader() : table.verticalHeader();
        QCOMPARE(widget->parentWidget(), header);
        QCOMPARE(table.widgetForHeaderSection(2, orientation), widget);
        const Qt::Orientation other = orientation == Qt::Horizontal ? Qt::Vertical : Qt::Horizontal;
        QCOMPARE(table.widgetForHeaderSection(2, other), nullptr);
        QCOMPARE(table.widgetForHeaderSection(1, orientation), nullptr);
    }

    void otherOrientationValuesDoNothing_data()
    {
        QTest::addColumn<int>("orientation");
        QTest::newRow("zero") << 0;
        QTest::newRow("both bits") << 3;
        QTest::newRow("large") << 64;
    }

    void otherOrientationValuesDoNothing()
    {
        QFETCH(int, orientation);
        Table table;
        table.setColumnCount(3);
        table.setRowCount(3);
        const auto value = static_cast<Qt::Orientation>(orientation);
        QWidget keeper;
        QPointer<QPushButton> widget = new QPushButton(&keeper);
        table.setWidgetForHeaderSection(0, value, widget);
        QCOMPARE(widget->parentWidget(), &keeper);
        QCOMPARE(table.widgetForHeaderSection(0, value), nullptr);
        QCOMPARE(table.widgetForHeaderSection(0, Qt::Horizontal), nullptr);
        QCOMPARE(table.widgetForHeaderSection(0, Qt::Vertical), nullptr);
        QCOMPARE(table.horizontalHeader()->defaultSectionSize() == 90, false);
    }

    void secondWidgetDeletesFirst()
    {
        Table table;
        table.setColumnCount(3);
        QPointer<QPushButton> first = new QPushButton;
        QPointer<QPushButton> second = new QPushButton;
        table.setWidgetForHeaderSection(1, Qt::Horizontal, first);
        table.setWidgetForHeaderSection(1, Qt::Horizontal, second);
        QVERIFY(first.isNull());
        QCOMPARE(table.widgetForHeaderSection(1, Qt::Horizontal), second.data());
        // The same widget again stays.
        table.setWidgetForHeaderSection(1, Qt::Horizontal, second);
        QVERIFY(!second.isNull());
        QCOMPARE(table.widgetForHeaderSection(1, Qt::Horizontal), second.data());
    }

    void nullWidgetEmptiesSection()
    {
        Table table;
        table.setRowCount(3);
        QPointer<QLineEdit> caption = new QLineEdit;
        table.setWidgetForHeaderSection(0, Qt::Vertical, caption);
        table.setWidgetForHeaderSection(0, Qt::Vertical, nullptr);
        QVERIFY(caption.isNull());
        QCOMPARE(table.widgetForHeaderSection(0, Qt::Vertical), nullptr);
    }

    void widgetsArePlacedOnShow()
    {
        Fixture fixture;
        QVERIFY(QTest::qWaitForWindowExposed(&fixture.table));
        const QHeaderView *columns = fixture.table.horizontalHeader();
        const QHeaderView *rows = fixture.table.verticalHeader();
        for (int column = 0; column < 6; ++column) {
            QVERIFY(fixture.column(column)->isVisible());
            QCOMPARE(fixture.column(column)->geometry(), Fixture::headRect(Qt::Horizontal, column));
            QCOMPARE(fixture.column(column)->geometry(), sectionRect(columns, column));
        }
        for (int row = 0; row < 30; ++row) {
            QVERIFY(fixture.row(row)->isVisible());
            QCOMPARE(fixture.row(row)->geometry(), Fixture::headRect(Qt::Vertical, row));
            QCOMPARE(fixture.row(row)->geometry(), sectionRect(rows, row));
        }
    }

    void widgetIsNotPlacedAtOnce()
    {
        Fixture fixture;
        QVERIFY(QTest::qWaitForWindowExposed(&fixture.table));
        auto *late = new QPushButton(QStringLiteral("late"));
        late->setGeometry(untouched);
        fixture.table.setWidgetForHeaderSection(3, Qt::Horizontal, late);
        QCOMPARE(late->geometry(), untouched);
        // Added to a visible header, it shows with the header's next show.
        QVERIFY(!late->isVisible());
        fixture.table.horizontalHeader()->hide();
        fixture.table.horizontalHeader()->show();
        QVERIFY(late->isVisible());
        QCOMPARE(late->geometry(), QRect(270, 0, 90, 32));
    }

    void scrollMovesOnlyHeadsAlongIt_data()
    {
        QTest::addColumn<Qt::Orientation>("scrolled");
        QTest::newRow("vertical: row heads only") << Qt::Vertical;
        QTest::newRow("horizontal: column heads only") << Qt::Horizontal;
    }

    void scrollMovesOnlyHeadsAlongIt()
    {
        QFETCH(Qt::Orientation, scrolled);
        const Qt::Orientation other = scrolled == Qt::Horizontal ? Qt::Vertical : Qt::Horizontal;
        Fixture fixture;
        QVERIFY(QTest::qWaitForWindowExposed(&fixture.table));
        fixture.markAll(other);
        QScrollBar *scrollBar = scrolled == Qt::Horizontal ? fixture.table.horizontalScrollBar()
                                                           : fixture.table.verticalScrollBar();
        scrollBar->setValue(40);
        for (int section = 0; section < Fixture::count(scrolled); ++section)
            QCOMPARE(fixture.table.widgetForHeaderSection(section, scrolled)->geometry(),
                     Fixture::headRect(scrolled, section).translated(scrolled == Qt::Horizontal ? QPoint(-40, 0)
                                                                                                : QPoint(0, -40)));
        for (int section = 0; section < Fixture::count(other); ++section)
            QCOMPARE(fixture.table.widgetForHeaderSection(section, other)->geometry(), untouched);
    }

    void resizeMovesResizedSectionAndLater()
    {
        Fixture fixture;
        QVERIFY(QTest::qWaitForWindowExposed(&fixture.table));
        fixture.markAll(Qt::Horizontal);
        fixture.table.setColumnWidth(2, 150);
        QCOMPARE(fixture.column(0)->geometry(), untouched);
        QCOMPARE(fixture.column(1)->geometry(), untouched);
        QCOMPARE(fixture.column(2)->geometry(), QRect(180, 0, 150, 32));
        QCOMPARE(fixture.column(3)->geometry(), QRect(330, 0, 90, 32));
        QCOMPARE(fixture.column(5)->geometry(), QRect(510, 0, 90, 32));
    }

    void resizeOfRowMovesRowHeads()
    {
        Fixture fixture;
        QVERIFY(QTest::qWaitForWindowExposed(&fixture.table));
        fixture.markAll(Qt::Vertical);
        fixture.table.setRowHeight(4, 50);
        QCOMPARE(fixture.row(3)->geometry(), untouched);
        QCOMPARE(fixture.row(4)->geometry(), QRect(0, 112, 60, 50));
        QCOMPARE(fixture.row(5)->geometry(), QRect(0, 162, 60, 28));
    }

    void moveRepositionsFromSmallerVisualIndex_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::newRow("to the left") << 4 << 1;
        QTest::newRow("to the right") << 1 << 4;
    }

    void moveRepositionsFromSmallerVisualIndex()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        Fixture fixture;
        QVERIFY(QTest::qWaitForWindowExposed(&fixture.table));
        fixture.markAll(Qt::Horizontal);
        QHeaderView *header = fixture.table.horizontalHeader();
        header->moveSection(from, to);
        QCOMPARE(fixture.column(header->logicalIndex(0))->geometry(), untouched);
        for (int visual = 1; visual < 6; ++visual)
            QCOMPARE(fixture.column(header->logicalIndex(visual))->geometry(), QRect(90 * visual, 0, 90, 32));
    }

    void topLeftCornerWidget()
    {
        Fixture fixture;
        QVERIFY(QTest::qWaitForWindowExposed(&fixture.table));
        QPointer<QPushButton> corner = new QPushButton(QStringLiteral("All"));
        fixture.table.setTopLeftCornerWidget(corner);
        QCOMPARE(fixture.table.topLeftCornerWidget(), corner.data());
        QCOMPARE(corner->parentWidget(), &fixture.table);
        QVERIFY(fixture.table.isCornerButtonEnabled());
        QCOMPARE(corner->geometry(), QRect(0, 0, 60, 32));

        // It follows the headers' geometry.
        fixture.table.rowHead = QSize(100, 28);
        fixture.table.verticalHeader()->hide();
        fixture.table.verticalHeader()->show();
        QTRY_COMPARE(fixture.table.verticalHeader()->width(), 100);
        QTRY_COMPARE(corner->geometry(), QRect(0, 0, 100, 32));

        QPointer<QPushButton> replacement = new QPushButton(QStringLiteral("None"));
        fixture.table.setTopLeftCornerWidget(replacement);
        QVERIFY(corner.isNull());
        QCOMPARE(replacement->geometry(), QRect(0, 0, 100, 32));
    }

    void nullCornerWidgetDisablesCornerButton()
    {
        Table table;
        QPointer<QPushButton> corner = new QPushButton;
        table.setTopLeftCornerWidget(corner);
        table.setTopLeftCornerWidget(nullptr);
        QVERIFY(corner.isNull());
        QVERIFY(!table.isCornerButtonEnabled());
        QCOMPARE(table.topLeftCornerWidget(), nullptr);
        table.setTopLeftCornerWidget(new QPushButton);
        QVERIFY(table.isCornerButtonEnabled());
    }

    void sameCornerWidgetAgainStays()
    {
        Table table;
        QPointer<QPushButton> corner = new QPushButton;
        table.setTopLeftCornerWidget(corner);
        table.setTopLeftCornerWidget(corner);
        QVERIFY(!corner.isNull());
        QCOMPARE(table.topLeftCornerWidget(), corner.data());
    }

    void cornerWidgetTakenBackIsNotDeleted()
    {
        Table table;
        QWidget keeper;
        QPointer<QPushButton> corner = new QPushButton;
        table.setTopLeftCornerWidget(corner);
        corner->setParent(&keeper);
        QCOMPARE(table.topLeftCornerWidget(), nullptr);
        table.setTopLeftCornerWidget(new QPushButton);
        QVERIFY(!corner.isNull());
        QCOMPARE(corner->parentWidget(), &keeper);
    }

    void clearKeepsOnlyCornerWidget()
    {
        Fixture fixture;
        fixture.table.setItem(0, 0, new QTableWidgetItem(QStringLiteral("cell")));
        fixture.table.setItem(29, 5, new QTableWidgetItem(QStringLiteral("cell")));
        QPointer<QWidget> column = fixture.column(2);
        QPointer<QWidget> row = fixture.row(7);
        QPointer<QPushButton> corner = new QPushButton;
        fixture.table.setTopLeftCornerWidget(corner);

        fixture.table.clear();
        QVERIFY(column.isNull());
        QVERIFY(row.isNull());
        for (int section = 0; section < 30; ++section) {
            QCOMPARE(fixture.table.widgetForHeaderSection(section, Qt::Horizontal), nullptr);
            QCOMPARE(fixture.table.widgetForHeaderSection(section, Qt::Vertical), nullptr);
        }
        QVERIFY(fixture.table.horizontalHeader()->findChildren<QPushButton *>().isEmpty());
        QVERIFY(fixture.table.verticalHeader()->findChildren<QLineEdit *>().isEmpty());
        QCOMPARE(fixture.table.topLeftCornerWidget(), corner.data());
        QVERIFY(!corner.isNull());
        QCOMPARE(fixture.table.item(0, 0), nullptr);
        QCOMPARE(fixture.table.item(29, 5), nullptr);
    }

    void widgetDeletedElsewhereIsForgotten()
    {
        Table table;
        table.setColumnCount(2);
        auto *button = new QPushButton;
        table.setWidgetForHeaderSection(0, Qt::Horizontal, button);
        delete button;
        QCOMPARE(table.widgetForHeaderSection(0, Qt::Horizontal), nullptr);
        table.setWidgetForHeaderSection(0, Qt::Horizontal, new QPushButton);
        table.clear();
        QCOMPARE(table.widgetForHeaderSection(0, Qt::Horizontal), nullptr);
    }

    void destroyingTableDeletesItsWidgets()
    {
        auto fixture = std::make_unique<Fixture>();
        QVERIFY(QTest::qWaitForWindowExposed(&fixture->table));
        QPointer<QWidget> column = fixture->column(0);
        QPointer<QWidget> row = fixture->row(0);
        QPointer<QPushButton> corner = new QPushButton;
        fixture->table.setTopLeftCornerWidget(corner);
        fixture->table.setItem(1, 1, new QTableWidgetItem(QStringLiteral("cell")));
        fixture.reset();
        QVERIFY(column.isNull());
        QVERIFY(row.isNull());
        QVERIFY(corner.isNull());
    }
};

QTEST_MAIN(tst_TableWidget)
#include "tst_TableWidget.moc"
