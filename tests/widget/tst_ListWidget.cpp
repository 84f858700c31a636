// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/ListWidget.h>

#include <QtWidgets/private/qabstractitemview_p.h>

#include <QPointer>
#include <QPushButton>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <vector>

using ko::qtToolkit::widget::ListWidget;

namespace {

QPushButton *makeButton(const QString &text)
{
    auto *button = new QPushButton(text);
    button->setCheckable(true);
    return button;
}

// A list with \a rows checkable buttons labelled "0", "1", ...
std::unique_ptr<ListWidget> makeList(int rows)
{
    auto list = std::make_unique<ListWidget>();
    for (int row = 0; row < rows; ++row)
        list->addItem(makeButton(QString::number(row)));
    return list;
}

QAbstractButton *buttonAt(const ListWidget &list, int row)
{
    return qobject_cast<QAbstractButton *>(list.widget(row));
}

// The widgets the view keeps as editors of its rows, in either direction of its registry.
// Qt exports no type information for its private classes, which the undefined-behaviour
// sanitizer's check of the downcast would need.
#if defined(__GNUC__)
__attribute__((no_sanitize("vptr")))
#endif
QSet<QWidget *> registeredEditors(QAbstractItemView *view)
{
    const auto *viewPrivate = static_cast<QAbstractItemViewPrivate *>(QObjectPrivate::get(view));
    QSet<QWidget *> editors;
    for (auto it = viewPrivate->editorIndexHash.cbegin(); it != viewPrivate->editorIndexHash.cend(); ++it)
        editors.insert(it.key());
    for (const QEditorInfo &info : viewPrivate->indexEditorHash)
        editors.insert(info.widget.data());
    for (QWidget *widget : viewPrivate->persistent)
        editors.insert(widget);
    return editors;
}

void deleteDeferred()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// Buttons of the randomized test, known by number; records which ones were destroyed.
class ButtonPool
{
public:
    int create()
    {
        const int id = int(buttons.size());
        QPushButton *button = makeButton(QString::number(id));
        QObject::connect(button, &QObject::destroyed, [this, id] { destroyed[size_t(id)] = true; });
        buttons.push_back(button);
        destroyed.push_back(false);
        return id;
    }

    QAbstractButton *button(int id) const { return buttons[size_t(id)]; }
    bool isDestroyed(int id) const { return destroyed[size_t(id)]; }

private:
    std::vector<QAbstractButton *> buttons;
    std::vector<bool> destroyed;
};

// What the list should look like: button numbers in row order, the current row and the checked
// button. Clicks and current-row changes are applied to it by hand, following Qt's rules for
// single-selection views and exclusive button groups.
struct ListModel
{
    QVector<int> rows;
    int current = -1;
    int checked = -1;

    // Removes \a row as the view does: when the current row goes while others remain, the next
    // row (or else the previous one) becomes current first, which checks its button.
    void removeRow(int row)
    {
        const int count = rows.size();
        if (current == row) {
            if (count == 1) {
                current = -1;
            } else {
                const int next = row + 1 < count ? row + 1 : row - 1;
                checked = rows.at(next);
                current = next > row ? next - 1 : next;
            }
        } else if (current > row) {
            --current;
        }
        if (checked == rows.at(row))
            checked = -1;
        rows.remove(row);
    }
};

} // namespace

class tst_ListWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        ListWidget list;
        QCOMPARE(list.count(), 0);
        QCOMPARE(list.selectionMode(), QAbstractItemView::SingleSelection);
        QCOMPARE(list.focusPolicy(), Qt::NoFocus);
        QCOMPARE(list.currentRow(), -1);
        QCOMPARE(list.widget(0), nullptr);
        QPushButton stranger;
        QCOMPARE(list.row(&stranger), -1);
        QCOMPARE(list.row(nullptr), -1);
    }

    void addNullIsRefused_data()
    {
        QTest::addColumn<bool>("viaInsert");
        QTest::newRow("addItem") << false;
        QTest::newRow("insertItem") << true;
    }

    void addNullIsRefused()
    {
        QFETCH(bool, viaInsert);
        ListWidget list;
        // Both operations name addItem.
        QTest::ignoreMessage(QtWarningMsg, "ListWidget::addItem: cannot add null widget");
        if (viaInsert)
            list.insertItem(0, nullptr);
        else
            list.addItem(nullptr);
        QCOMPARE(list.count(), 0);
    }

    void addTwiceIsRefused_data()
    {
        QTest::addColumn<bool>("viaInsert");
        QTest::newRow("addItem") << false;
        QTest::newRow("insertItem") << true;
    }

    void addTwiceIsRefused()
    {
        QFETCH(bool, viaInsert);
        ListWidget list;
        QPushButton *button = makeButton(QStringLiteral("A"));
        list.addItem(button);
        QTest::ignoreMessage(QtWarningMsg, "ListWidget::addItem: widget already in the list");
        if (viaInsert)
            list.insertItem(0, button);
        else
            list.addItem(button);
        QCOMPARE(list.count(), 1);
        QCOMPARE(list.row(button), 0);
    }

    void insertAlwaysAppends_data()
    {
        QTest::addColumn<int>("requestedRow");
        QTest::newRow("first") << 0;
        QTest::newRow("middle") << 1;
        QTest::newRow("negative") << -1;
        QTest::newRow("past the end") << 7;
    }

    void insertAlwaysAppends()
    {
        QFETCH(int, requestedRow);
        const auto list = makeList(2);
        QPushButton *button = makeButton(QStringLiteral("B"));
        list->insertItem(requestedRow, button);
        QCOMPARE(list->count(), 3);
        QCOMPARE(list->row(button), 2);
        QCOMPARE(list->widget(2), button);
        QCOMPARE(buttonAt(*list, 0)->text(), QStringLiteral("0"));
        QCOMPARE(buttonAt(*list, 1)->text(), QStringLiteral("1"));
    }

    void addedButtonBecomesRowWidget()
    {
        ListWidget list;
        auto *button = new QPushButton(QStringLiteral("A rather long preset name"));
        button->setFocusPolicy(Qt::StrongFocus);
        list.addItem(button);
        QCOMPARE(list.widget(0), button);
        QCOMPARE(list.itemWidget(list.item(0)), button);
        QCOMPARE(button->parentWidget(), list.viewport());
        QCOMPARE(button->focusPolicy(), Qt::NoFocus);
        QCOMPARE(list.item(0)->sizeHint(), button->sizeHint());
        QCOMPARE(list.item(0)->type(), int(QListWidgetItem::Type));
    }

    void addingChecksAndSelectsNothing()
    {
        ListWidget list;
        QSignalSpy currentRows(&list, &QListWidget::currentRowChanged);
        QPushButton *unchecked = makeButton(QStringLiteral("A"));
        QPushButton *checked = makeButton(QStringLiteral("B"));
        checked->setChecked(true);
        list.addItem(unchecked);
        list.addItem(checked);
        QCOMPARE(list.currentRow(), -1);
        QCOMPARE(currentRows.count(), 0);
        QVERIFY(list.selectedItems().isEmpty());
        QVERIFY(!unchecked->isChecked());
        QVERIFY(checked->isChecked());
    }

    void removeNullIsRefused()
    {
        const auto list = makeList(2);
        QTest::ignoreMessage(QtWarningMsg, "ListWidget::removeItem: cannot remove null widget");
        list->removeItem(nullptr);
        QCOMPARE(list->count(), 2);
    }

    void removeStrangerIsRefused()
    {
        const auto list = makeList(2);
        QPushButton stranger;
        QTest::ignoreMessage(QtWarningMsg, "ListWidget::addItem: widget not in the list");
        list->removeItem(&stranger);
        QCOMPARE(list->count(), 2);
    }

    void removeDeletesButton()
    {
        const auto list = makeList(3);
        QPointer<QAbstractButton> middle = buttonAt(*list, 1);
        QAbstractButton *last = buttonAt(*list, 2);
        list->removeItem(middle);
        QVERIFY(middle.isNull());
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->row(last), 1);
        QCOMPARE(buttonAt(*list, 0)->text(), QStringLiteral("0"));

        QTest::ignoreMessage(QtWarningMsg, "ListWidget::addItem: widget not in the list");
        QPushButton stranger;
        list->removeItem(&stranger);
    }

    void takeHandsButtonBack()
    {
        const auto list = makeList(3);
        QPointer<QAbstractButton> middle = buttonAt(*list, 1);
        QAbstractButton *taken = list->takeItem(1);
        QCOMPARE(taken, middle.data());
        deleteDeferred();
        QVERIFY(!middle.isNull());
        QCOMPARE(list->row(taken), -1);
        QCOMPARE(list->count(), 2);
        QCOMPARE(buttonAt(*list, 1)->text(), QStringLiteral("2"));
        QCOMPARE(taken->parentWidget(), list->viewport());

        // Out of the group: checking it leaves the list alone, and it still works as a button.
        QWidget holder;
        taken->setParent(&holder);
        QSignalSpy clicks(taken, &QAbstractButton::clicked);
        list->setCurrentRow(0);
        QTest::mouseClick(taken, Qt::LeftButton);
        QCOMPARE(clicks.count(), 1);
        QVERIFY(taken->isChecked());
        QVERIFY(buttonAt(*list, 0)->isChecked());
        QCOMPARE(list->currentRow(), 0);

        // It can come back as a row of its own.
        taken->setChecked(false);
        list->addItem(taken);
        QCOMPARE(list->row(taken), 2);
        QCOMPARE(taken->parentWidget(), list->viewport());
    }

    void takeOfRowWithoutButtonReturnsNull_data()
    {
        QTest::addColumn<int>("row");
        QTest::newRow("negative") << -1;
        QTest::newRow("past the end") << 3;
        QTest::newRow("plain item") << 2;
    }

    void takeOfRowWithoutButtonReturnsNull()
    {
        QFETCH(int, row);
        const auto list = makeList(2);
        list->QListWidget::addItem(QStringLiteral("plain"));
        QCOMPARE(list->takeItem(row), nullptr);
        QCOMPARE(list->count(), 3);
    }

    void takeLeavesForeignWidgetInPlace()
    {
        // A row whose widget was set through Qt's own interface is no button row.
        const auto list = makeList(1);
        auto *item = new QListWidgetItem(QStringLiteral("label row"), list.get());
        auto *label = new QWidget;
        list->setItemWidget(item, label);
        QCOMPARE(list->widget(1), label);
        QCOMPARE(list->takeItem(1), nullptr);
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->widget(1), label);
    }

    void widgetOfBadRowIsNull_data()
    {
        QTest::addColumn<int>("row");
        QTest::newRow("negative") << -1;
        QTest::newRow("past the end") << 2;
        QTest::newRow("far past the end") << 1000;
    }

    void widgetOfBadRowIsNull()
    {
        QFETCH(int, row);
        const auto list = makeList(2);
        QCOMPARE(list->widget(row), nullptr);
    }

    void currentRowChecksItsButton()
    {
        const auto list = makeList(4);
        list->setCurrentRow(2);
        for (int row = 0; row < 4; ++row)
            QCOMPARE(buttonAt(*list, row)->isChecked(), row == 2);
        list->setCurrentRow(0);
        for (int row = 0; row < 4; ++row)
            QCOMPARE(buttonAt(*list, row)->isChecked(), row == 0);
    }

    void checkedButtonMakesItsRowCurrent()
    {
        const auto list = makeList(3);
        QSignalSpy currentRows(list.get(), &QListWidget::currentRowChanged);
        buttonAt(*list, 0)->setChecked(true);
        QCOMPARE(list->currentRow(), 0);
        QCOMPARE(currentRows.count(), 1);
        QCOMPARE(currentRows.at(0).at(0).toInt(), 0);
    }

    void clickMakesRowCurrent()
    {
        const auto list = makeList(3);
        list->show();
        QVERIFY(QTest::qWaitForWindowExposed(list.get()));
        QSignalSpy currentRows(list.get(), &QListWidget::currentRowChanged);
        QTest::mouseClick(buttonAt(*list, 1), Qt::LeftButton);
        QCOMPARE(list->currentRow(), 1);
        QTest::mouseClick(buttonAt(*list, 2), Qt::LeftButton);
        QCOMPARE(list->currentRow(), 2);
        QVERIFY(!buttonAt(*list, 1)->isChecked());
        QVERIFY(buttonAt(*list, 2)->isChecked());
        // The checked button of an exclusive group stays checked when touched again.
        QTest::mouseClick(buttonAt(*list, 2), Qt::LeftButton);
        QVERIFY(buttonAt(*list, 2)->isChecked());
        QCOMPARE(currentRows.count(), 2);
    }

    void touchOnItemChecksButton()
    {
        // Touching the part of a row that a narrow button leaves free makes the row current.
        const auto list = makeList(2);
        list->resize(300, 200);
        buttonAt(*list, 1)->setFixedWidth(40);
        list->show();
        QVERIFY(QTest::qWaitForWindowExposed(list.get()));
        const QRect rect = list->visualItemRect(list->item(1));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(rect.right() - 5, rect.center().y()));
        QCOMPARE(list->currentRow(), 1);
        QVERIFY(buttonAt(*list, 1)->isChecked());
    }

    void noCurrentRowKeepsCheckedButton()
    {
        const auto list = makeList(3);
        list->setCurrentRow(1);
        list->setCurrentRow(-1);
        QCOMPARE(list->currentRow(), -1);
        QVERIFY(buttonAt(*list, 1)->isChecked());
    }

    // Designed: no current row leaves the last button checked. Pressing it, which toggles
    // nothing in an exclusive group, still makes its row current again.
    void pressingButtonKeptCheckedMakesItsRowCurrent_data()
    {
        QTest::addColumn<bool>("rowWithoutButton");
        QTest::newRow("after no current row") << false;
        QTest::newRow("after a row without a button") << true;
    }

    void pressingButtonKeptCheckedMakesItsRowCurrent()
    {
        QFETCH(bool, rowWithoutButton);
        const auto list = makeList(3);
        list->show();
        QVERIFY(QTest::qWaitForWindowExposed(list.get()));
        list->setCurrentRow(1);
        if (rowWithoutButton) {
            delete buttonAt(*list, 2);
            list->setCurrentRow(2);
        } else {
            list->setCurrentRow(-1);
        }
        QVERIFY(buttonAt(*list, 1)->isChecked());
        QSignalSpy currentRows(list.get(), &QListWidget::currentRowChanged);
        QTest::mouseClick(buttonAt(*list, 1), Qt::LeftButton);
        QCOMPARE(list->currentRow(), 1);
        QVERIFY(buttonAt(*list, 1)->isChecked());
        QCOMPARE(currentRows.count(), 1);
        QCOMPARE(currentRows.at(0).at(0).toInt(), 1);
    }

    void buttonOfAnotherListIsRefused()
    {
        const auto first = makeList(2);
        ListWidget second;
        QAbstractButton *button = buttonAt(*first, 1);
        QTest::ignoreMessage(QtWarningMsg, "ListWidget::addItem: widget already in another list");
        second.addItem(button);
        QCOMPARE(second.count(), 0);
        QCOMPARE(second.row(button), -1);
        QCOMPARE(first->row(button), 1);
        QCOMPARE(button->parentWidget(), first->viewport());
        // Still the first list's own to remove.
        QPointer<QAbstractButton> watched(button);
        first->removeItem(button);
        QVERIFY(watched.isNull());
        QCOMPARE(first->count(), 1);
        // A button taken out of a list may join another.
        QAbstractButton *taken = first->takeItem(0);
        second.addItem(taken);
        QCOMPARE(second.row(taken), 0);
    }

    void clearRemovesAllRows()
    {
        const auto list = makeList(3);
        list->setCurrentRow(1);
        QVector<QPointer<QAbstractButton>> buttons;
        for (int row = 0; row < 3; ++row)
            buttons.append(buttonAt(*list, row));
        list->clear();
        QCOMPARE(list->count(), 0);
        QCOMPARE(list->currentRow(), -1);
        for (const auto &button : qAsConst(buttons))
            QCOMPARE(list->row(button), -1);
        deleteDeferred();
        for (const auto &button : qAsConst(buttons))
            QVERIFY(button.isNull());

        // The list works as before.
        QPushButton *fresh = makeButton(QStringLiteral("fresh"));
        list->addItem(fresh);
        list->setCurrentRow(0);
        QVERIFY(fresh->isChecked());
    }

    void buttonDeletedByApplicationLeavesEmptyRow()
    {
        const auto list = makeList(3);
        delete buttonAt(*list, 1);
        QCOMPARE(list->count(), 3);
        QCOMPARE(list->widget(1), nullptr);
        QCOMPARE(list->takeItem(1), nullptr);
        list->setCurrentRow(1);
        QCOMPARE(list->currentRow(), 1);
        QVERIFY(!buttonAt(*list, 0)->isChecked());
        // A new button is never mistaken for the deleted one.
        QPushButton *fresh = makeButton(QStringLiteral("fresh"));
        list->addItem(fresh);
        QCOMPARE(list->row(fresh), 3);
    }

    // Qt's item view would keep the deleted button as the row's editor and lay it out again.
    void buttonDeletedByApplicationLeavesNoEditorBehind()
    {
        const auto list = makeList(3);
        list->resize(200, 100);
        list->show();
        QVERIFY(QTest::qWaitForWindowExposed(list.get()));
        QAbstractButton *doomed = buttonAt(*list, 1);
        delete doomed;
        QCOMPARE(registeredEditors(list.get()), (QSet<QWidget *>{buttonAt(*list, 0), buttonAt(*list, 2)}));

        // Layouts, scrolling and removals go on over the empty row.
        list->resize(180, 60);
        list->scrollToBottom();
        list->doItemsLayout();
        QCoreApplication::processEvents();
        QVERIFY(!list->grab().isNull());
        QCOMPARE(buttonAt(*list, 2)->parentWidget(), list->viewport());
        list->removeItem(buttonAt(*list, 0));
        QCOMPARE(list->count(), 2);
        list->clear();
        QCOMPARE(list->count(), 0);
    }

    void instrument_data()
    {
        QTest::addColumn<QVariant>("listId");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("Menu") << QVariant(QStringLiteral("Menu"))
                              << QStringList{QStringLiteral("Menu.Row.0"), QStringLiteral("Menu.Row.1"),
                                             QStringLiteral("Menu.Row.2")};
        QTest::newRow("without TestID") << QVariant()
                                        << QStringList{QStringLiteral("Row."), QStringLiteral("Row."),
                                                       QStringLiteral("Row.")};
        QTest::newRow("empty TestID") << QVariant(QString(QLatin1String("")))
                                      << QStringList{QStringLiteral(".Row.0"), QStringLiteral(".Row.1"),
                                                     QStringLiteral(".Row.2")};
    }

    void instrument()
    {
        QFETCH(QVariant, listId);
        QFETCH(QStringList, expected);
        const auto list = makeList(3);
        if (listId.isValid())
            list->setProperty("TestID", listId);
        else
            for (int row = 0; row < 3; ++row) // Qt reports the row number that found no marker
                QTest::ignoreMessage(QtWarningMsg,
                                     QRegularExpression(QStringLiteral("^QString::arg: Argument missing: .*Row\\..*%1$")
                                                            .arg(row)));
        list->instrument();
        for (int row = 0; row < 3; ++row)
            QCOMPARE(buttonAt(*list, row)->property("TestID").toString(), expected.at(row));
    }

    void instrumentSkipsRowsWithoutButton()
    {
        auto list = makeList(1);
        list->QListWidget::addItem(QStringLiteral("plain"));
        list->addItem(makeButton(QStringLiteral("2")));
        list->setProperty("TestID", QStringLiteral("Menu"));
        list->instrument();
        QCOMPARE(buttonAt(*list, 0)->property("TestID").toString(), QStringLiteral("Menu.Row.0"));
        QCOMPARE(buttonAt(*list, 2)->property("TestID").toString(), QStringLiteral("Menu.Row.2"));
    }

    void instrumentNamesOnlyAtTheCall()
    {
        auto list = makeList(1);
        list->setProperty("TestID", QStringLiteral("Menu"));
        list->instrument();
        list->setProperty("TestID", QStringLiteral("Other"));
        QPushButton *late = makeButton(QStringLiteral("late"));
        list->addItem(late);
        QCOMPARE(buttonAt(*list, 0)->property("TestID").toString(), QStringLiteral("Menu.Row.0"));
        QVERIFY(!late->property("TestID").isValid());
        list->instrument();
        QCOMPARE(buttonAt(*list, 0)->property("TestID").toString(), QStringLiteral("Other.Row.0"));
        QCOMPARE(late->property("TestID").toString(), QStringLiteral("Other.Row.1"));
    }

    void destroyingListDeletesItsButtons()
    {
        auto list = makeList(3);
        list->setCurrentRow(2);
        QVector<QPointer<QAbstractButton>> buttons;
        for (int row = 0; row < 3; ++row)
            buttons.append(buttonAt(*list, row));
        // A taken button that was never re-parented is still the viewport's child.
        QPointer<QAbstractButton> taken = list->takeItem(0);
        list.reset();
        for (const auto &button : qAsConst(buttons))
            QVERIFY(button.isNull());
        QVERIFY(taken.isNull());
    }

    // Random operations against a model of rows, current row and checked button; after every
    // step the list must match the model, taken buttons must be alive and removed ones gone.
    void randomOperationsFollowModel()
    {
        const int steps = 10000;
        const int maximumRows = 30;
        QRandomGenerator random(20240611u);
        ButtonPool pool;
        ListModel model;
        QVector<int> taken;    // owned by the test
        QVector<int> deleted;  // must be destroyed by now
        QWidget holder;        // where some taken buttons are re-parented
        ListWidget list;
        list.resize(200, 300);
        list.show();

        enum Operation { Add, Insert, AddTaken, Remove, Take, TakeBadRow, DeleteTaken, Clear, SetCurrent, Click };
        const char *const names[] = {"add", "insert", "add taken", "remove", "take", "take bad row",
                                     "delete taken", "clear", "set current row", "click"};
        const QVector<QPair<Operation, int>> weights{
            {Add, 14}, {Insert, 10}, {AddTaken, 6}, {Remove, 10}, {Take, 10}, {TakeBadRow, 2},
            {DeleteTaken, 3}, {Clear, 1}, {SetCurrent, 16}, {Click, 28}};
        int totalWeight = 0;
        for (const auto &weight : weights)
            totalWeight += weight.second;

        const auto pick = [&] {
            int ticket = random.bounded(totalWeight);
            for (const auto &weight : weights) {
                if (ticket < weight.second)
                    return weight.first;
                ticket -= weight.second;
            }
            return Click;
        };

        const auto mismatch = [&]() -> QString {
            if (list.count() != model.rows.size())
                return QStringLiteral("count %1, expected %2").arg(list.count()).arg(model.rows.size());
            for (int row = 0; row < model.rows.size(); ++row) {
                const int id = model.rows.at(row);
                QAbstractButton *button = pool.button(id);
                if (pool.isDestroyed(id) || list.widget(row) != button)
                    return QStringLiteral("row %1 does not show button %2").arg(row).arg(id);
                if (list.row(button) != row)
                    return QStringLiteral("row() of button %1 is %2, expected %3")
                        .arg(id)
                        .arg(list.row(button))
                        .arg(row);
                if (button->isChecked() != (id == model.checked))
                    return QStringLiteral("button %1 checked: %2").arg(id).arg(button->isChecked());
            }
            if (list.currentRow() != model.current)
                return QStringLiteral("current row %1, expected %2").arg(list.currentRow()).arg(model.current);
            if (model.current >= 0 && model.rows.at(model.current) != model.checked)
                return QStringLiteral("current row %1 not mirrored by the checked button").arg(model.current);
            for (int id : qAsConst(taken)) {
                if (pool.isDestroyed(id))
                    return QStringLiteral("taken button %1 was destroyed").arg(id);
                if (list.row(pool.button(id)) != -1)
                    return QStringLiteral("taken button %1 still has a row").arg(id);
            }
            for (int id : qAsConst(deleted)) {
                if (!pool.isDestroyed(id))
                    return QStringLiteral("button %1 was not deleted").arg(id);
            }
            return {};
        };

        int performed[Click + 1] = {};
        for (int step = 0; step < steps; ++step) {
            deleted.clear(); // checked once: a destroyed button cannot come back
            const int count = model.rows.size();
            Operation operation = pick();
            if ((operation == Add || operation == Insert || operation == AddTaken) && count >= maximumRows)
                operation = Remove;
            if ((operation == AddTaken || operation == DeleteTaken) && taken.isEmpty())
                operation = Add;
            if ((operation == Remove || operation == Take || operation == Click) && count == 0)
                operation = Add;

            switch (operation) {
            case Add:
            case Insert: {
                const int id = pool.create();
                if (operation == Add)
                    list.addItem(pool.button(id));
                else
                    list.insertItem(random.bounded(-1, count + 2), pool.button(id));
                model.rows.append(id);
                break;
            }
            case AddTaken: {
                const int id = taken.takeAt(random.bounded(taken.size()));
                pool.button(id)->setChecked(false); // buttons join the list unchecked
                list.insertItem(random.bounded(count + 1), pool.button(id));
                model.rows.append(id);
                break;
            }
            case Remove: {
                const int row = random.bounded(count);
                const int id = model.rows.at(row);
                list.removeItem(pool.button(id));
                model.removeRow(row);
                deleted.append(id);
                break;
            }
            case Take: {
                const int row = random.bounded(count);
                const int id = model.rows.at(row);
                const bool wasChecked = model.checked == id;
                const bool currentMovesOn = model.current == row && count > 1;
                QAbstractButton *button = list.takeItem(row);
                QVERIFY2(button == pool.button(id), qPrintable(QStringLiteral("step %1: take").arg(step)));
                model.removeRow(row);
                // The current row moved on while the button was still in the group.
                QCOMPARE(button->isChecked(), wasChecked && !currentMovesOn);
                if (random.bounded(2))
                    button->setParent(&holder);
                taken.append(id);
                break;
            }
            case TakeBadRow:
                QCOMPARE(list.takeItem(random.bounded(2) ? -1 : count), nullptr);
                break;
            case DeleteTaken: {
                const int id = taken.takeAt(random.bounded(taken.size()));
                delete pool.button(id);
                deleted.append(id);
                break;
            }
            case Clear:
                list.clear();
                deleteDeferred();
                deleted = model.rows;
                model = ListModel();
                break;
            case SetCurrent: {
                const int row = random.bounded(-1, count + 1);
                list.setCurrentRow(row);
                if (row >= 0 && row < count) {
                    model.current = row;
                    model.checked = model.rows.at(row);
                } else {
                    model.current = -1; // the checked button stays checked
                }
                break;
            }
            case Click: {
                const int row = random.bounded(count);
                const int id = model.rows.at(row);
                QTest::mouseClick(pool.button(id), Qt::LeftButton);
                // Also a button that stayed checked makes its row current again.
                model.checked = id;
                model.current = row;
                break;
            }
            }
            ++performed[operation];

            const QString problem = mismatch();
            QVERIFY2(problem.isEmpty(), qPrintable(QStringLiteral("step %1, %2: %3")
                                                       .arg(step)
                                                       .arg(QLatin1String(names[operation]), problem)));
        }

        // Every kind of operation ran often enough to matter.
        for (const auto &weight : weights)
            QVERIFY2(performed[weight.first] > 50, names[weight.first]);
    }
};

QTEST_MAIN(tst_ListWidget)
#include "tst_ListWidget.moc"
