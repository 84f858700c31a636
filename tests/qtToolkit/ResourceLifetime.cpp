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
};

QTEST_APPLESS_MAIN(tst_ResourceLifetime)
#include "ResourceLifetime.moc"
