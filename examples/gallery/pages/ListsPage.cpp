// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// Lists and tables: preset lists paged by navigator buttons, in a column and in a row, and a
// mixer-like table with controls in its column heads.

#include "GalleryPage.h"

#include <ko/qtToolkit/widget/TableWidget.h>
#include <ko/qtToolkit/widget/listWithButtons/WidgetBase.h>

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

using ko::qtToolkit::widget::TableWidget;
using ko::qtToolkit::widget::listWithButtons::Direction;
using ko::qtToolkit::widget::listWithButtons::WidgetBase;

// Column heads hold a caption above a button; row heads a channel number.
class ChannelTable : public TableWidget
{
public:
    using TableWidget::TableWidget;

    QSize headerSectionSize(Qt::Orientation orientation) const override
    {
        return orientation == Qt::Horizontal ? QSize(120, 72) : QSize(48, 40);
    }
};

QPushButton *presetButton(const QString &text)
{
    auto *button = new QPushButton(text);
    button->setCheckable(true);
    return button;
}

WidgetBase *createPresetList(const QString &testId, Direction direction, const QStringList &names)
{
    auto *list = new WidgetBase(testId, direction);
    for (const QString &name : names)
        list->addItem(presetButton(name));
    list->instrument();
    // The navigator buttons do the scrolling.
    list->getList()->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->getList()->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    if (direction == Direction::Horizontal)
        list->getList()->setFlow(QListView::LeftToRight);
    list->setCurrentRow(0);
    return list;
}

QWidget *createVerticalList()
{
    auto *box = new QGroupBox(QStringLiteral("Presets"));
    auto *layout = new QVBoxLayout(box);
    QStringList names;
    for (int i = 1; i <= 24; ++i)
        names << QStringLiteral("Preset %1").arg(i);
    WidgetBase *list = createPresetList(QStringLiteral("Presets"), Direction::Vertical, names);
    auto *current = new QLabel;
    QObject::connect(list, &WidgetBase::currentRowChanged, current, [current, list](int row) {
        const auto *button = qobject_cast<QAbstractButton *>(list->widget(row));
        current->setText(button ? QStringLiteral("Loaded: %1").arg(button->text()) : QStringLiteral("No preset"));
    });
    current->setText(QStringLiteral("Loaded: Preset 1"));
    layout->addWidget(list, 1);
    layout->addWidget(current);
    return box;
}

QWidget *createHorizontalList()
{
    auto *box = new QGroupBox(QStringLiteral("Scene presets"));
    auto *layout = new QVBoxLayout(box);
    const QStringList names{QStringLiteral("Intro"),  QStringLiteral("Verse"),    QStringLiteral("Chorus"),
                            QStringLiteral("Bridge"), QStringLiteral("Solo"),     QStringLiteral("Break"),
                            QStringLiteral("Outro"),  QStringLiteral("Encore"),   QStringLiteral("Talk"),
                            QStringLiteral("Pause"),  QStringLiteral("Line check"), QStringLiteral("Night")};
    WidgetBase *list = createPresetList(QStringLiteral("Scenes"), Direction::Horizontal, names);
    list->getList()->setSpacing(2);
    list->setFixedHeight(48);
    layout->addWidget(list);
    return box;
}

QWidget *columnHead(const QString &caption, const QString &buttonText)
{
    auto *head = new QWidget;
    head->setAutoFillBackground(true);
    auto *layout = new QVBoxLayout(head);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    layout->addWidget(new QLineEdit(caption));
    auto *button = new QPushButton(buttonText);
    button->setCheckable(true);
    layout->addWidget(button);
    return head;
}

QWidget *createTable()
{
    auto *box = new QGroupBox(QStringLiteral("Channels: captions and buttons in the column heads"));
    auto *layout = new QVBoxLayout(box);
    auto *table = new ChannelTable;
    const QStringList channels{QStringLiteral("Vocal"), QStringLiteral("Guitar"), QStringLiteral("Bass"),
                               QStringLiteral("Keys"),  QStringLiteral("Drums"),  QStringLiteral("Ambience")};
    table->setColumnCount(channels.size());
    table->setRowCount(4);
    for (int column = 0; column < channels.size(); ++column) {
        table->setWidgetForHeaderSection(column, Qt::Horizontal,
                                         columnHead(channels.at(column), QStringLiteral("Mute")));
    }
    const QStringList rows{QStringLiteral("Gain"), QStringLiteral("Pan"), QStringLiteral("Aux 1"),
                           QStringLiteral("Aux 2")};
    for (int row = 0; row < rows.size(); ++row) {
        auto *label = new QLabel(rows.at(row));
        label->setAutoFillBackground(true);
        table->setWidgetForHeaderSection(row, Qt::Vertical, label);
        for (int column = 0; column < channels.size(); ++column)
            table->setItem(row, column, new QTableWidgetItem(QStringLiteral("%1 dB").arg(-6 * row - column)));
    }
    auto *all = new QPushButton(QStringLiteral("All"));
    QObject::connect(all, &QPushButton::clicked, table, &QTableWidget::selectAll);
    table->setTopLeftCornerWidget(all);
    layout->addWidget(table);
    return box;
}

QWidget *createListsPage()
{
    auto *page = new QWidget;
    auto *layout = new QHBoxLayout(page);
    auto *right = new QVBoxLayout;
    right->addWidget(createHorizontalList());
    right->addWidget(createTable(), 1);
    layout->addWidget(createVerticalList());
    layout->addLayout(right, 1);
    return page;
}

const gallery::PageRegistration registration{50, QStringLiteral("Lists"), createListsPage};

} // namespace
