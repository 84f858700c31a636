// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/singleton/TextEntry.h>

#include <QSignalSpy>
#include <QTest>

using ko::qtToolkit::singleton::TextEntry;

class tst_TextEntry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Before any test function touches the switch: the state of a fresh process.
    void initTestCase()
    {
        TextEntry *instance = TextEntry::instance();
        QVERIFY(instance);
        QCOMPARE(TextEntry::instance(), instance);
        QCOMPARE(instance->parent(), nullptr);
        QCOMPARE(instance->useKeypad(), false);
        QCOMPARE(instance->metaObject()->className(), "ko::qtToolkit::singleton::TextEntry");
        QCOMPARE(instance->metaObject()->propertyCount(), QObject::staticMetaObject.propertyCount());
    }

    void init()
    {
        TextEntry::instance()->setUseKeypad(false);
    }

    void signalOnlyOnChange()
    {
        TextEntry *instance = TextEntry::instance();
        QSignalSpy spy(instance, &TextEntry::useKeypadChanged);

        instance->setUseKeypad(false);
        QCOMPARE(spy.count(), 0);

        instance->setUseKeypad(true);
        QCOMPARE(instance->useKeypad(), true);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toBool(), true);

        instance->setUseKeypad(true);
        QCOMPARE(spy.count(), 1);

        instance->setUseKeypad(false);
        QCOMPARE(instance->useKeypad(), false);
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.at(1).at(0).toBool(), false);
    }

    void stateIsSharedByEveryCaller()
    {
        TextEntry::instance()->setUseKeypad(true);
        QCOMPARE(TextEntry::instance()->useKeypad(), true);
    }
};

QTEST_APPLESS_MAIN(tst_TextEntry)
#include "tst_TextEntry.moc"
