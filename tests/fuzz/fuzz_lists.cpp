// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// Random ownership operations on a ListWidget and on the lists of a navigator list (WidgetBase):
// buttons added, inserted, removed, taken, moved to the other list, deleted by the application,
// checked, clicked, and the lists cleared, instrumented, scrolled with their navigator buttons
// and given new scroll bars. Rules: a list's rows and its row lookup agree, a button is in one
// list at most, removed and cleared buttons are deleted and taken ones are not, a list has one
// checked button at most, the current row and the checked button follow each other, and each
// navigator button is enabled exactly while its scroll bar can move its way.

#include "FuzzSupport.h"

#include <ko/qtToolkit/widget/ListWidget.h>
#include <ko/qtToolkit/widget/listWithButtons/NavigatorButtonNext.h>
#include <ko/qtToolkit/widget/listWithButtons/NavigatorButtonPrevious.h>
#include <ko/qtToolkit/widget/listWithButtons/WidgetBase.h>

#include <QPointer>
#include <QPushButton>
#include <QScrollBar>

#include <vector>

using namespace ko::qtToolkit;
using widget::ListWidget;
using widget::listWithButtons::Direction;
using widget::listWithButtons::NavigatorButton;
using widget::listWithButtons::NavigatorButtonNext;
using widget::listWithButtons::WidgetBase;

namespace {

QString name(const QAbstractButton *button)
{
    return button ? button->text() : QStringLiteral("null");
}

QAbstractButton *buttonAt(const ListWidget &list, int row)
{
    return qobject_cast<QAbstractButton *>(list.widget(row));
}

int checkedButtons(const ListWidget &list)
{
    int checked = 0;
    for (int row = 0; row < list.count(); ++row) {
        if (QAbstractButton *button = buttonAt(list, row))
            checked += button->isChecked() ? 1 : 0;
    }
    return checked;
}

class Session
{
public:
    explicit Session(FuzzedDataProvider &data)
        : data(data)
        , direction(data.ConsumeBool() ? Direction::Horizontal : Direction::Vertical)
        , wrapped(QStringLiteral("Items"), direction)
    {
        lists[0] = &plain;
        lists[1] = wrapped.getList();
        wrapped.resize(120, 120);
        if (data.ConsumeBool())
            wrapped.show();
        KO_FUZZ_TRACE("list0: a ListWidget; list1: a %s WidgetBase's list, shown %d\n",
                      direction == Direction::Horizontal ? "horizontal" : "vertical", wrapped.isVisible());
        for (NavigatorButton *button : wrapped.findChildren<NavigatorButton *>()) {
            if (dynamic_cast<NavigatorButtonNext *>(button))
                next = button;
            else
                previous = button;
        }
        KO_FUZZ_CHECK(next && previous, QStringLiteral("a navigator list has both buttons"));
    }

    // The lists delete what they hold; the rest is the application's.
    ~Session() { fuzz::deleteUnowned(pool); }

    void run()
    {
        fuzz::runOperations(data, 48, [this] { step(); }, [this] { checkLists(); });
        checkNavigators();
    }

private:
    // A new button, or one of those made before, which may have been deleted since (null then).
    QPushButton *consumeButton()
    {
        if (pool.empty() || (pool.size() < 8 && data.ConsumeIntegralInRange<int>(0, 3) == 0)) {
            auto *button = new QPushButton(QStringLiteral("b%1").arg(pool.size()));
            button->setCheckable(data.ConsumeIntegralInRange<int>(0, 5) != 0);
            button->setChecked(button->isCheckable() && data.ConsumeIntegralInRange<int>(0, 5) == 0);
            KO_FUZZ_TRACE("new %s, checkable %d, checked %d\n", qPrintable(name(button)), button->isCheckable(), button->isChecked());
            button->setMinimumHeight(40);
            button->setMinimumWidth(40);
            pool.emplace_back(button);
            return button;
        }
        return pool[data.ConsumeIntegralInRange<std::size_t>(0, pool.size() - 1)];
    }

    int index(const ListWidget &list) const
    {
        return &list == lists[0] ? 0 : 1;
    }

    ListWidget *listOf(const QAbstractButton *button) const
    {
        for (ListWidget *list : lists) {
            if (list->row(const_cast<QAbstractButton *>(button)) >= 0)
                return list;
        }
        return nullptr;
    }

    void add(ListWidget &list, QPushButton *button, bool insert)
    {
        const int before = list.count();
        ListWidget *owner = button ? listOf(button) : nullptr;
        KO_FUZZ_TRACE("list%d.%s(%s)\n", index(list), insert ? "insertItem" : "addItem", qPrintable(name(button)));
        if (insert)
            list.insertItem(data.ConsumeIntegralInRange<int>(-2, before + 1), button);
        else
            list.addItem(button);
        if (!button || owner == &list) {
            KO_FUZZ_CHECK(list.count() == before, QStringLiteral("adding ") + name(button) + QStringLiteral(" again added a row"));
        } else if (!owner) {
            // New rows are always the last ones.
            KO_FUZZ_CHECK(list.count() == before + 1 && list.row(button) == before && list.widget(before) == button,
                          QStringLiteral("adding ") + name(button) + QStringLiteral(" to %1 rows").arg(before));
        }
    }

    void step()
    {
        ListWidget &list = *lists[data.ConsumeIntegralInRange<int>(0, 1)];
        switch (data.ConsumeIntegralInRange<int>(0, 14)) {
        case 0:
        case 1:
            add(list, data.ConsumeIntegralInRange<int>(0, 9) == 0 ? nullptr : consumeButton(), false);
            break;
        case 2:
            add(list, consumeButton(), true);
            break;
        case 3: {
            QPushButton *button = data.ConsumeIntegralInRange<int>(0, 9) == 0 ? nullptr : consumeButton();
            const bool inList = button && list.row(button) >= 0;
            const int before = list.count();
            QPointer<QPushButton> watch(button);
            KO_FUZZ_TRACE("list%d.removeItem(%s)\n", index(list), qPrintable(name(button)));
            list.removeItem(button);
            if (inList) {
                KO_FUZZ_CHECK(list.count() == before - 1 && !watch, QStringLiteral("removing ") + name(button));
            } else {
                KO_FUZZ_CHECK(list.count() == before, QStringLiteral("removing ") + name(button) + QStringLiteral(", not in the list"));
            }
            break;
        }
        case 4: {
            const int before = list.count();
            const int row = data.ConsumeIntegralInRange<int>(-1, before);
            QAbstractButton *expected = buttonAt(list, row);
            KO_FUZZ_TRACE("list%d.takeItem(%d)\n", index(list), row);
            QPointer<QAbstractButton> taken(list.takeItem(row));
            KO_FUZZ_CHECK(taken == expected, QStringLiteral("taking row %1 gave ").arg(row) + name(taken));
            if (taken) {
                KO_FUZZ_CHECK(list.count() == before - 1 && list.row(taken) == -1,
                              QStringLiteral("taking row %1").arg(row));
                fuzz::settle();
                KO_FUZZ_CHECK(taken, QStringLiteral("a taken button was deleted"));
                if (data.ConsumeBool())
                    taken->setParent(nullptr); // the application keeps it
            }
            break;
        }
        case 5: {
            std::vector<QPointer<QAbstractButton>> held;
            for (int row = 0; row < list.count(); ++row)
                held.emplace_back(buttonAt(list, row));
            KO_FUZZ_TRACE("list%d.clear()\n", index(list));
            list.clear();
            KO_FUZZ_CHECK(list.count() == 0, QStringLiteral("clearing left rows"));
            fuzz::settle();
            for (const QPointer<QAbstractButton> &button : held)
                KO_FUZZ_CHECK(!button, QStringLiteral("clearing kept ") + name(button));
            break;
        }
        case 6:
            // The application deletes a button; its row stays, empty.
            if (!pool.empty()) {
                QPushButton *button = pool[data.ConsumeIntegralInRange<std::size_t>(0, pool.size() - 1)];
                KO_FUZZ_TRACE("delete %s\n", qPrintable(name(button)));
                delete button;
            }
            break;
        case 7: {
            const int current = list.currentRow();
            const int row = data.ConsumeIntegralInRange<int>(-1, list.count());
            KO_FUZZ_TRACE("list%d.setCurrentRow(%d)\n", index(list), row);
            list.setCurrentRow(row);
            QAbstractButton *button = buttonAt(list, row);
            // Making the current row current again changes nothing, whatever its button shows.
            if (button && button->isCheckable() && row != current) {
                KO_FUZZ_CHECK(button->isChecked() && list.currentRow() == row,
                              QStringLiteral("row %1 made current, ").arg(row) + name(button) + QStringLiteral(" left unchecked"));
            }
            // No current row leaves the last button checked, and at most that one.
            if (row == -1)
                KO_FUZZ_CHECK(checkedButtons(list) <= 1, QStringLiteral("no current row, but several checked buttons"));
            break;
        }
        case 8:
        case 9: {
            QPushButton *button = consumeButton();
            if (!button)
                break; // deleted by the application earlier
            const bool wasChecked = button->isChecked();
            const bool click = data.ConsumeBool();
            KO_FUZZ_TRACE("%s->%s\n", qPrintable(name(button)), click ? "click()" : wasChecked ? "setChecked(false)" : "setChecked(true)");
            if (click)
                button->click();
            else
                button->setChecked(!wasChecked);
            if (ListWidget *owner = listOf(button)) {
                // A click makes the row current also when the button stayed checked.
                if (button->isChecked() && (!wasChecked || click)) {
                    KO_FUZZ_CHECK(owner->currentRow() == owner->row(button),
                                  name(button) + QStringLiteral(" checked, but row %1 current").arg(owner->currentRow()));
                }
            }
            break;
        }
        case 10: {
            const bool named = data.ConsumeBool();
            list.setProperty("TestID", named ? QVariant(QStringLiteral("Menu")) : QVariant());
            if (!named)
                break; // every button would get "Row.", with Qt's warning about the missing marker
            KO_FUZZ_TRACE("list%d.instrument()\n", index(list));
            list.instrument();
            for (int row = 0; row < list.count(); ++row) {
                if (QWidget *rowWidget = list.widget(row)) {
                    KO_FUZZ_CHECK(rowWidget->property("TestID").toString() == QStringLiteral("Menu.Row.%1").arg(row),
                                  QStringLiteral("row %1 named ").arg(row) + rowWidget->property("TestID").toString());
                }
            }
            break;
        }
        case 11: {
            NavigatorButton *button = data.ConsumeBool() ? next : previous;
            QScrollBar &bar = scrollBar();
            const int before = bar.value();
            const bool enabled = button->isEnabled();
            KO_FUZZ_TRACE("%s navigator click()\n", button == next ? "next" : "previous");
            button->click();
            if (enabled) {
                const int expected = button == next ? std::min(bar.maximum(), before + bar.singleStep())
                                                    : std::max(bar.minimum(), before - bar.singleStep());
                KO_FUZZ_CHECK(bar.value() == expected, QStringLiteral("a navigator press moved %1 to %2").arg(before).arg(bar.value()));
            }
            break;
        }
        case 12:
            KO_FUZZ_TRACE("navigators setHideIfScrollBarWouldHide\n");
            next->setHideIfScrollBarWouldHide(data.ConsumeBool());
            previous->setHideIfScrollBarWouldHide(data.ConsumeBool());
            break;
        case 13: {
            // The application gives the list a scroll bar of its own, and the old one goes.
            KO_FUZZ_TRACE("list1 gets a new scroll bar\n");
            auto *bar = new QScrollBar(direction == Direction::Horizontal ? Qt::Horizontal : Qt::Vertical);
            if (direction == Direction::Horizontal)
                lists[1]->setHorizontalScrollBar(bar);
            else
                lists[1]->setVerticalScrollBar(bar);
            fuzz::settle();
            break;
        }
        default:
            wrapped.resize(data.ConsumeIntegralInRange<int>(0, 300), data.ConsumeIntegralInRange<int>(0, 300));
            KO_FUZZ_TRACE("navigator list resized to %d x %d, shown %d\n", wrapped.width(), wrapped.height(), wrapped.isVisible());
            fuzz::settle();
            checkNavigators();
            break;
        }
    }

    QScrollBar &scrollBar() const
    {
        return *(direction == Direction::Horizontal ? lists[1]->horizontalScrollBar() : lists[1]->verticalScrollBar());
    }

    void checkLists() const
    {
        for (ListWidget *list : lists) {
            for (int row = 0; row < list->count(); ++row) {
                if (QAbstractButton *button = buttonAt(*list, row))
                    KO_FUZZ_CHECK(list->row(button) == row, QStringLiteral("row %1 holds ").arg(row) + name(button)
                                                               + QStringLiteral(", found at %1").arg(list->row(button)));
            }
            KO_FUZZ_CHECK(checkedButtons(*list) <= 1, QStringLiteral("%1 checked buttons in one list").arg(checkedButtons(*list)));
        }
        for (const QPointer<QPushButton> &button : pool) {
            if (!button)
                continue;
            const int rows[] = {lists[0]->row(button), lists[1]->row(button)};
            KO_FUZZ_CHECK(rows[0] < 0 || rows[1] < 0, name(button) + QStringLiteral(" is in both lists"));
            for (int i = 0; i < 2; ++i) {
                if (rows[i] >= 0) {
                    KO_FUZZ_CHECK(lists[i]->widget(rows[i]) == button,
                                  name(button) + QStringLiteral(" found at row %1, which holds another widget").arg(rows[i]));
                }
            }
        }
    }

    void checkNavigators() const
    {
        QScrollBar &bar = scrollBar();
        KO_FUZZ_CHECK(next->isEnabled() == (bar.value() != bar.maximum()),
                      QStringLiteral("next button enabled %1 at %2 of %3 to %4").arg(next->isEnabled()).arg(bar.value()).arg(bar.minimum()).arg(bar.maximum()));
        KO_FUZZ_CHECK(previous->isEnabled() == (bar.value() != bar.minimum()),
                      QStringLiteral("previous button enabled %1 at %2 of %3 to %4").arg(previous->isEnabled()).arg(bar.value()).arg(bar.minimum()).arg(bar.maximum()));
    }

    FuzzedDataProvider &data;
    const Direction direction;
    ListWidget plain;
    WidgetBase wrapped;
    ListWidget *lists[2] = {};
    NavigatorButton *next = nullptr;
    NavigatorButton *previous = nullptr;
    std::vector<QPointer<QPushButton>> pool;
};

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzz::createApplication();
    fuzz::expectWarnings({"ListWidget::addItem: cannot add null widget", "ListWidget::addItem: widget already in the list",
                          "ListWidget::addItem: widget already in another list",
                          "ListWidget::addItem: widget not in the list", "ListWidget::removeItem: cannot remove null widget"});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    Session(data).run();
    fuzz::settle();
    return 0;
}
