// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/qtToolkit.h>

#include <QTest>

class tst_Version : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void versionTextIsEmpty()
    {
        const std::string version = ko::qtToolkit::getVersion();
        QVERIFY(version.empty());
    }

    void interfaceVersion()
    {
        QCOMPARE(ko::qtToolkit::getInterfaceVersion(), 101u);
    }

    void compatibility_data()
    {
        QTest::addColumn<unsigned int>("version");
        QTest::addColumn<bool>("compatible");
        QTest::newRow("current") << 101u << true;
        QTest::newRow("older") << 100u << false;
        QTest::newRow("newer") << 102u << false;
        QTest::newRow("zero") << 0u << false;
        QTest::newRow("largest") << std::numeric_limits<unsigned int>::max() << false;
    }

    void compatibility()
    {
        QFETCH(unsigned int, version);
        QFETCH(bool, compatible);
        QCOMPARE(ko::qtToolkit::isCompatibleWithInterfaceVersion(version), compatible);
    }
};

QTEST_APPLESS_MAIN(tst_Version)
#include "tst_Version.moc"
