// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// Random ownership operations on a TableWidget: widgets put into header sections (new ones,
// ones already in another section or in the corner, null), corner widgets, widgets the
// application deletes or takes back, clear, rows and columns added and removed, sections
// resized and moved, the table scrolled, shown and hidden. Rules: a section returns the widget
// last put there while the table owns it, a replaced widget is deleted, clear deletes the
// section widgets and keeps the corner, a widget is in one place at most, and after a layout
// every section widget of a shown table covers its section and the corner widget the corner.

#include "FuzzSupport.h"

#include <ko/qtToolkit/widget/TableWidget.h>

#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QScrollBar>

#include <map>
#include <vector>

using namespace ko::qtToolkit;

namespace {

class Table : public widget::TableWidget
{
public:
    explicit Table(QSize horizontal, QSize vertical)
        : TableWidget(nullptr)
        , horizontal(horizontal)
        , vertical(vertical)
    {
    }

    QSize headerSectionSize(Qt::Orientation orientation) const override
    {
        return orientation == Qt::Horizontal ? horizontal : vertical;
    }

    using TableWidget::scrollContentsBy;

private:
    QSize horizontal;
    QSize vertical;
};

QString name(const QWidget *widget)
{
    return widget ? widget->objectName() : QStringLiteral("null");
}

class Session
{
public:
    explicit Session(FuzzedDataProvider &data)
        : data(data)
        , table(QSize(data.ConsumeIntegralInRange<int>(0, 200), data.ConsumeIntegralInRange<int>(0, 60)),
                QSize(data.ConsumeIntegralInRange<int>(0, 120), data.ConsumeIntegralInRange<int>(0, 60)))
    {
        table.setRowCount(data.ConsumeIntegralInRange<int>(0, 30));
        table.setColumnCount(data.ConsumeIntegralInRange<int>(0, 12));
        table.resize(data.ConsumeIntegralInRange<int>(0, 400), data.ConsumeIntegralInRange<int>(0, 300));
        if (data.ConsumeBool())
            table.show();
    }

    ~Session() { fuzz::deleteUnowned(pool); }

    void run() { fuzz::runOperations(data, 40, [this] { step(); }, [this] { checkOwnership(); }); }

private:
    QWidget *consumeWidget()
    {
        if (pool.empty() || (pool.size() < 10 && data.ConsumeIntegralInRange<int>(0, 2) == 0)) {
            auto *widget = new QLabel(QStringLiteral("w%1").arg(pool.size()));
            widget->setObjectName(widget->text());
            pool.emplace_back(widget);
            return widget;
        }
        return pool[data.ConsumeIntegralInRange<std::size_t>(0, pool.size() - 1)];
    }

    Qt::Orientation consumeOrientation()
    {
        // Only Qt::Horizontal (1) and Qt::Vertical (2) mean something.
        return static_cast<Qt::Orientation>(data.ConsumeIntegralInRange<int>(0, 3));
    }

    // Where the table holds \a widget: forgets the places that it no longer holds.
    void forget(const QWidget *widget)
    {
        for (auto it = sections.begin(); it != sections.end();) {
            if (it->second == widget)
                it = sections.erase(it);
            else
                ++it;
        }
        if (corner == widget)
            corner = nullptr;
    }

    void step()
    {
        switch (data.ConsumeIntegralInRange<int>(0, 13)) {
        case 0:
        case 1:
        case 2: {
            const int section = data.ConsumeBool() ? data.ConsumeIntegralInRange<int>(-2, 14) : fuzz::consumeInt(data);
            const Qt::Orientation orientation = consumeOrientation();
            QWidget *widget = data.ConsumeIntegralInRange<int>(0, 5) == 0 ? nullptr : consumeWidget();
            QPointer<QWidget> previous(table.widgetForHeaderSection(section, orientation));
            table.setWidgetForHeaderSection(section, orientation, widget);
            if (orientation != Qt::Horizontal && orientation != Qt::Vertical) {
                KO_FUZZ_CHECK(!table.widgetForHeaderSection(section, orientation),
                              QStringLiteral("a section of orientation %1 holds a widget").arg(int(orientation)));
                break;
            }
            KO_FUZZ_CHECK(table.widgetForHeaderSection(section, orientation) == widget,
                          QStringLiteral("section %1 holds ").arg(section) + name(table.widgetForHeaderSection(section, orientation))
                              + QStringLiteral(", not ") + name(widget));
            if (previous != widget)
                KO_FUZZ_CHECK(!previous, QStringLiteral("the replaced ") + name(previous) + QStringLiteral(" lives on"));
            forget(widget);
            if (widget)
                sections[{section, orientation}] = widget;
            else
                sections.erase({section, orientation});
            break;
        }
        case 3: {
            QWidget *widget = data.ConsumeIntegralInRange<int>(0, 3) == 0 ? nullptr : consumeWidget();
            QPointer<QWidget> previous(table.topLeftCornerWidget());
            table.setTopLeftCornerWidget(widget);
            KO_FUZZ_CHECK(table.topLeftCornerWidget() == widget,
                          QStringLiteral("the corner holds ") + name(table.topLeftCornerWidget()) + QStringLiteral(", not ") + name(widget));
            if (previous != widget)
                KO_FUZZ_CHECK(!previous, QStringLiteral("the replaced corner ") + name(previous) + QStringLiteral(" lives on"));
            forget(widget);
            corner = widget;
            break;
        }
        case 4: {
            std::vector<QPointer<QWidget>> held;
            for (const auto &entry : sections)
                held.emplace_back(entry.second);
            table.clear();
            for (const QPointer<QWidget> &widget : held)
                KO_FUZZ_CHECK(!widget, QStringLiteral("clear kept ") + name(widget));
            sections.clear();
            KO_FUZZ_CHECK(table.topLeftCornerWidget() == corner, QStringLiteral("clear took the corner widget"));
            break;
        }
        case 5:
            // The application deletes a widget, or takes it back.
            if (!pool.empty()) {
                QPointer<QWidget> widget = pool[data.ConsumeIntegralInRange<std::size_t>(0, pool.size() - 1)];
                if (data.ConsumeBool())
                    delete widget.data();
                else if (widget)
                    widget->setParent(nullptr);
                forget(widget);
            }
            break;
        case 6:
            table.setRowCount(data.ConsumeIntegralInRange<int>(0, 30));
            break;
        case 7:
            table.setColumnCount(data.ConsumeIntegralInRange<int>(0, 12));
            break;
        case 8: {
            QHeaderView *header = data.ConsumeBool() ? table.horizontalHeader() : table.verticalHeader();
            if (header->count() > 0)
                header->resizeSection(data.ConsumeIntegralInRange<int>(0, header->count() - 1), data.ConsumeIntegralInRange<int>(0, 300));
            break;
        }
        case 9: {
            QHeaderView *header = data.ConsumeBool() ? table.horizontalHeader() : table.verticalHeader();
            if (header->count() > 0) {
                header->moveSection(data.ConsumeIntegralInRange<int>(0, header->count() - 1),
                                    data.ConsumeIntegralInRange<int>(0, header->count() - 1));
            }
            break;
        }
        case 10: {
            QScrollBar *bar = data.ConsumeBool() ? table.horizontalScrollBar() : table.verticalScrollBar();
            bar->setValue(data.ConsumeIntegralInRange<int>(bar->minimum() - 1, bar->maximum() + 1));
            break;
        }
        case 11:
            table.setVisible(!table.isVisible());
            break;
        case 12:
            table.resize(data.ConsumeIntegralInRange<int>(0, 400), data.ConsumeIntegralInRange<int>(0, 300));
            break;
        default:
            fuzz::settle();
            checkPlaces();
            break;
        }
    }

    void checkOwnership() const
    {
        for (const auto &entry : sections) {
            const QWidget *held = table.widgetForHeaderSection(entry.first.first, entry.first.second);
            KO_FUZZ_CHECK(held == entry.second, QStringLiteral("section %1 holds ").arg(entry.first.first) + name(held)
                                                    + QStringLiteral(", not ") + name(entry.second));
        }
        if (corner)
            KO_FUZZ_CHECK(table.topLeftCornerWidget() == corner, QStringLiteral("the corner lost ") + name(corner));
        for (const QPointer<QWidget> &widget : pool) {
            if (!widget)
                continue;
            int places = corner == widget ? 1 : 0;
            for (const auto &entry : sections)
                places += entry.second == widget ? 1 : 0;
            KO_FUZZ_CHECK(places <= 1, name(widget) + QStringLiteral(" is in %1 places").arg(places));
        }
    }

    // A header places every section widget when it is shown, and a scroll places those of the
    // header that scrolled (chosen by the horizontal distance alone); the corner widget follows
    // the headers' geometry.
    void checkPlaces()
    {
        const bool visible = table.isVisible();
        table.hide();
        table.show();
        fuzz::settle();
        checkPlaces(Qt::Horizontal);
        checkPlaces(Qt::Vertical);
        if (corner) {
            const QRect expected(0, 0, table.verticalHeader()->width(), table.horizontalHeader()->height());
            KO_FUZZ_CHECK(corner->geometry() == expected,
                          QStringLiteral("the corner widget at %1 x %2, the corner %3 x %4")
                              .arg(corner->width()).arg(corner->height()).arg(expected.width()).arg(expected.height()));
        }
        const bool horizontal = data.ConsumeBool();
        QScrollBar *bar = horizontal ? table.horizontalScrollBar() : table.verticalScrollBar();
        const int before = bar->value();
        bar->setValue(data.ConsumeIntegralInRange<int>(bar->minimum(), bar->maximum()));
        if (bar->value() != before) {
            fuzz::settle();
            checkPlaces(horizontal ? Qt::Horizontal : Qt::Vertical);
        }
        table.setVisible(visible);
    }

    void checkPlaces(Qt::Orientation orientation) const
    {
        QHeaderView *header = orientation == Qt::Horizontal ? table.horizontalHeader() : table.verticalHeader();
        if (!header->isVisible())
            return;
        for (const auto &entry : sections) {
            const int section = entry.first.first;
            if (entry.first.second != orientation || section < 0 || section >= header->count()
                || header->isSectionHidden(section)) {
                continue;
            }
            const int position = header->sectionViewportPosition(section);
            const int size = header->sectionSize(section);
            const QRect expected = orientation == Qt::Horizontal ? QRect(position, 0, size, header->height())
                                                                 : QRect(0, position, header->width(), size);
            const QRect actual = entry.second->geometry();
            KO_FUZZ_CHECK(actual == expected || expected.isEmpty(),
                          name(entry.second) + QStringLiteral(" of section %1 at (%2, %3, %4 x %5), the section at (%6, %7, %8 x %9)")
                                                   .arg(section)
                                                   .arg(actual.x()).arg(actual.y()).arg(actual.width()).arg(actual.height())
                                                   .arg(expected.x()).arg(expected.y())
                                                   .arg(expected.width()).arg(expected.height()));
        }
    }

    FuzzedDataProvider &data;
    Table table;
    std::vector<QPointer<QWidget>> pool;
    std::map<std::pair<int, Qt::Orientation>, QPointer<QWidget>> sections;
    QPointer<QWidget> corner;
};

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzz::createApplication();
    fuzz::expectWarnings({});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    Session(data).run();
    fuzz::settle();
    return 0;
}
