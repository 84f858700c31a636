// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/listWithButtons/ListWrapper.h>

#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QStyledItemDelegate>
#include <QTest>

using ko::qtToolkit::widget::ListWidget;
using ko::qtToolkit::widget::listWithButtons::ListWrapper;

namespace {

QPushButton *makeButton(const QString &text)
{
    auto *button = new QPushButton(text);
    button->setCheckable(true);
    return button;
}

void fill(ListWrapper &wrapper, int rows)
{
    for (int row = 0; row < rows; ++row)
        wrapper.addItem(makeButton(QString::number(row)));
}

} // namespace

class tst_ListWrapper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void identifiers_data()
    {
        QTest::addColumn<QString>("testId");
        QTest::addColumn<QString>("wrapperId");
        QTest::newRow("Items") << QStringLiteral("Items") << QStringLiteral("ItemsWrapper");
        QTest::newRow("dotted") << QStringLiteral("Page.Presets") << QStringLiteral("Page.PresetsWrapper");
        QTest::newRow("empty") << QString() << QStringLiteral("Wrapper");
    }

    void identifiers()
    {
        QFETCH(QString, testId);
        QFETCH(QString, wrapperId);
        ListWrapper wrapper(testId);
        QCOMPARE(wrapper.property("TestID").toString(), wrapperId);
        QCOMPARE(wrapper.getList()->property("TestID").toString(), testId);
    }

    void ownsListWithoutLayout()
    {
        QWidget parent;
        auto *wrapper = new ListWrapper(QStringLiteral("Items"), &parent);
        QCOMPARE(wrapper->parentWidget(), &parent);
        QCOMPARE(wrapper->getList()->parentWidget(), wrapper);
        const ListWrapper &constWrapper = *wrapper;
        QCOMPARE(constWrapper.getList(), wrapper->getList());
        QCOMPARE(wrapper->layout(), nullptr);
        QCOMPARE(wrapper->count(), 0);
    }

    void relaysCurrentRowChanged()
    {
        ListWrapper wrapper(QStringLiteral("Items"));
        fill(wrapper, 3);
        QSignalSpy spy(&wrapper, &ListWrapper::currentRowChanged);
        wrapper.setCurrentRow(2);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toInt(), 2);
        QVERIFY(qobject_cast<QAbstractButton *>(wrapper.widget(2))->isChecked());

        wrapper.show();
        QTest::mouseClick(wrapper.widget(0), Qt::LeftButton);
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.at(1).at(0).toInt(), 0);

        wrapper.clear();
        QCOMPARE(spy.count(), 3);
        QCOMPARE(spy.at(2).at(0).toInt(), -1);
    }

    void forwardsRowOperations()
    {
        ListWrapper wrapper(QStringLiteral("Items"));
        QPushButton *first = makeButton(QStringLiteral("first"));
        QPushButton *second = makeButton(QStringLiteral("second"));
        wrapper.addItem(first);
        wrapper.insertItem(0, second); // button rows are always appended
        QCOMPARE(wrapper.count(), 2);
        QCOMPARE(wrapper.row(first), 0);
        QCOMPARE(wrapper.row(second), 1);
        QCOMPARE(wrapper.widget(1), second);

        // A plain item goes where it is asked to.
        wrapper.insertItem(0, new QListWidgetItem(QStringLiteral("plain")));
        QCOMPARE(wrapper.count(), 3);
        QCOMPARE(wrapper.item(0)->text(), QStringLiteral("plain"));
        QCOMPARE(wrapper.widget(0), nullptr);
        QCOMPARE(wrapper.row(first), 1);
        QCOMPARE(wrapper.item(1), wrapper.getList()->item(1));

        QPointer<QAbstractButton> taken = wrapper.takeItem(2);
        QCOMPARE(taken.data(), second);
        QCOMPARE(wrapper.row(second), -1);
        QCOMPARE(wrapper.count(), 2);
        delete taken;

        QPointer<QPushButton> removed = first;
        wrapper.removeItem(first);
        QVERIFY(removed.isNull());
        QCOMPARE(wrapper.count(), 1);

        QTest::ignoreMessage(QtWarningMsg, "ListWidget::addItem: cannot add null widget");
        wrapper.addItem(nullptr);
        QTest::ignoreMessage(QtWarningMsg, "ListWidget::removeItem: cannot remove null widget");
        wrapper.removeItem(nullptr);

        wrapper.clear();
        QCOMPARE(wrapper.count(), 0);
    }

    void forwardsInstrument()
    {
        ListWrapper wrapper(QStringLiteral("Items"));
        fill(wrapper, 2);
        wrapper.instrument();
        QCOMPARE(wrapper.widget(0)->property("TestID").toString(), QStringLiteral("Items.Row.0"));
        QCOMPARE(wrapper.widget(1)->property("TestID").toString(), QStringLiteral("Items.Row.1"));
    }

    void forwardsViewSettings()
    {
        ListWrapper wrapper(QStringLiteral("Items"));
        ListWidget *list = wrapper.getList();
        wrapper.setSelectionMode(QAbstractItemView::NoSelection);
        QCOMPARE(list->selectionMode(), QAbstractItemView::NoSelection);
        wrapper.setDragDropMode(QAbstractItemView::InternalMove);
        QCOMPARE(list->dragDropMode(), QAbstractItemView::InternalMove);
        wrapper.setSpacing(6);
        QCOMPARE(list->spacing(), 6);

        QStyledItemDelegate delegate;
        wrapper.setItemDelegate(&delegate);
        QCOMPARE(list->itemDelegate(), &delegate);
        wrapper.setItemDelegate(nullptr); // the delegate is the caller's
    }
};

QTEST_MAIN(tst_ListWrapper)
#include "tst_ListWrapper.moc"
