// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// Loads the library at run time instead of linking it, so that its resource bundle can be seen
// to arrive when the library is loaded and to go when it is unloaded.
#include <QFile>
#include <QLibrary>
#include <QTest>

class tst_ResourceLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bundleFollowsTheLibrary()
    {
        const QString styleSheet = QStringLiteral(":/qtToolkit.qss");
        QVERIFY(!QFile::exists(styleSheet));

        QLibrary library(QStringLiteral(KO_TEST_LIBRARY_FILE));
        QVERIFY2(library.load(), qPrintable(library.errorString()));
        QVERIFY(QFile::exists(styleSheet));
        QVERIFY(QFile::exists(QStringLiteral(":/ic_cross_red_24px.svg")));

        QVERIFY2(library.unload(), qPrintable(library.errorString()));
        QVERIFY(!QFile::exists(styleSheet));
    }

    // The dark sheet lives in a collection of its own, registered and unregistered with the bundle.
    void darkCollectionFollowsTheLibrary()
    {
        const QString darkSheet = QStringLiteral(":/ko/qtToolkit-dark.qss");
        QVERIFY(!QFile::exists(darkSheet));

        QLibrary library(QStringLiteral(KO_TEST_LIBRARY_FILE));
        QVERIFY2(library.load(), qPrintable(library.errorString()));
        QVERIFY(QFile::exists(darkSheet));
        QVERIFY(QFile::exists(QStringLiteral(":/ko/ic_cross_lightgray_24px.svg")));
        QVERIFY(QFile::exists(QStringLiteral(":/qtToolkit.qss")));

        QVERIFY2(library.unload(), qPrintable(library.errorString()));
        QVERIFY(!QFile::exists(darkSheet));
        QVERIFY(!QFile::exists(QStringLiteral(":/ko")));
        QVERIFY(!QFile::exists(QStringLiteral(":/qtToolkit.qss")));
    }
};

QTEST_APPLESS_MAIN(tst_ResourceLifetime)
#include "ResourceLifetime.moc"
