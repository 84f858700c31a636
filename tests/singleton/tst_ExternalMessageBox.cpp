// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/common/ExternalMessageBox.h>
#include <ko/qtToolkit/singleton/ExternalMessageBox.h>

#include <QMetaMethod>
#include <QTest>
#include <QWidget>

using ko::qtToolkit::singleton::ExternalMessageBox;

namespace {

// Remembers what it was asked and answers with a fixed code.
class Recorder : public ko::qtToolkit::common::ExternalMessageBox
{
public:
    explicit Recorder(int answer)
        : m_answer(answer)
    {
    }

    int confirm(QWidget &source, const QString &title, const QString &message, QMessageBox::Icon icon) const override
    {
        record(QStringLiteral("confirm"), source, title, message, icon);
        return m_answer;
    }

    int information(QWidget &source, const QString &title, const QString &message,
                    QMessageBox::Icon icon) const override
    {
        record(QStringLiteral("information"), source, title, message, icon);
        return m_answer + 100;
    }

    mutable QStringList calls;
    mutable QWidget *source = nullptr;
    mutable QString title;
    mutable QString message;
    mutable QMessageBox::Icon icon = QMessageBox::Critical;

private:
    void record(const QString &call, QWidget &w, const QString &t, const QString &m, QMessageBox::Icon i) const
    {
        calls.append(call);
        source = &w;
        title = t;
        message = m;
        icon = i;
    }

    int m_answer;
};

} // namespace

class tst_ExternalMessageBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        // The singleton outlives every test function.
        ExternalMessageBox::instance()->setImplementation(nullptr);
    }

    void instanceIsOneParentlessObject()
    {
        ExternalMessageBox *instance = ExternalMessageBox::instance();
        QVERIFY(instance);
        QCOMPARE(ExternalMessageBox::instance(), instance);
        QCOMPARE(instance->parent(), nullptr);
        QCOMPARE(instance->metaObject()->className(), "ko::qtToolkit::singleton::ExternalMessageBox");
    }

    void withoutImplementationEverythingIsZero()
    {
        ExternalMessageBox *box = ExternalMessageBox::instance();
        QWidget source;
        QCOMPARE(box->implementation(), nullptr);
        QCOMPARE(box->confirm(source, QStringLiteral("Reset"), QStringLiteral("Sure?")), 0);
        QCOMPARE(box->information(source, QStringLiteral("Info"), QStringLiteral("Text"), QMessageBox::Warning), 0);
    }

    void callsForwardEveryArgument_data()
    {
        QTest::addColumn<QString>("call");
        QTest::addColumn<QMessageBox::Icon>("icon");
        QTest::addColumn<int>("answer");
        QTest::newRow("confirm") << QStringLiteral("confirm") << QMessageBox::Question << 1;
        QTest::newRow("information") << QStringLiteral("information") << QMessageBox::Information << 107;
    }

    void callsForwardEveryArgument()
    {
        QFETCH(QString, call);
        QFETCH(QMessageBox::Icon, icon);
        QFETCH(int, answer);

        Recorder recorder(answer % 100);
        ExternalMessageBox *box = ExternalMessageBox::instance();
        box->setImplementation(&recorder);
        QCOMPARE(box->implementation(), &recorder);

        QWidget source;
        const QString title = QStringLiteral("Reset");
        const QString message = QStringLiteral("Reset all values?");
        const int result = call == QLatin1String("confirm") ? box->confirm(source, title, message, icon)
                                                            : box->information(source, title, message, icon);
        QCOMPARE(result, answer);
        QCOMPARE(recorder.calls, QStringList{call});
        QCOMPARE(recorder.source, &source);
        QCOMPARE(recorder.title, title);
        QCOMPARE(recorder.message, message);
        QCOMPARE(recorder.icon, icon);
    }

    void defaultIconIsNoIcon()
    {
        Recorder recorder(1);
        ExternalMessageBox::instance()->setImplementation(&recorder);
        QWidget source;
        ExternalMessageBox::instance()->confirm(source, QStringLiteral("T"), QStringLiteral("M"));
        QCOMPARE(recorder.icon, QMessageBox::NoIcon);
        recorder.icon = QMessageBox::Critical;
        ExternalMessageBox::instance()->information(source, QStringLiteral("T"), QStringLiteral("M"));
        QCOMPARE(recorder.icon, QMessageBox::NoIcon);
    }

    void replacingAndUnregistering()
    {
        Recorder first(1);
        Recorder second(2);
        ExternalMessageBox *box = ExternalMessageBox::instance();
        QWidget source;

        box->setImplementation(&first);
        box->setImplementation(&second);
        QCOMPARE(box->implementation(), &second);
        QCOMPARE(box->confirm(source, QString(), QString()), 2);
        QVERIFY(first.calls.isEmpty());

        box->setImplementation(nullptr);
        QCOMPARE(box->implementation(), nullptr);
        QCOMPARE(box->confirm(source, QString(), QString()), 0);
        QCOMPARE(second.calls.size(), 1);
    }

    void invokableSignatures_data()
    {
        QTest::addColumn<QByteArray>("signature");
        QTest::newRow("confirm with icon") << QByteArray("confirm(QWidget&,QString,QString,QMessageBox::Icon)");
        QTest::newRow("confirm without icon") << QByteArray("confirm(QWidget&,QString,QString)");
        QTest::newRow("information with icon") << QByteArray("information(QWidget&,QString,QString,QMessageBox::Icon)");
        QTest::newRow("information without icon") << QByteArray("information(QWidget&,QString,QString)");
    }

    void invokableSignatures()
    {
        QFETCH(QByteArray, signature);
        const QMetaObject *meta = ExternalMessageBox::instance()->metaObject();
        const int index = meta->indexOfMethod(signature.constData());
        QVERIFY(index >= 0);
        const QMetaMethod method = meta->method(index);
        QCOMPARE(method.methodType(), QMetaMethod::Method);
        QCOMPARE(method.access(), QMetaMethod::Public);
        QCOMPARE(method.returnType(), int(QMetaType::Int));
        const QList<QByteArray> names = method.parameterNames();
        const QList<QByteArray> expected{"source", "title", "message", "icon"};
        QCOMPARE(names, expected.mid(0, method.parameterCount()));
    }

    void invokeConfirmWithThreeArgumentsPassesNoIcon()
    {
        Recorder recorder(1);
        ExternalMessageBox::instance()->setImplementation(&recorder);
        QWidget source;
        int result = -1;
        QVERIFY(QMetaObject::invokeMethod(ExternalMessageBox::instance(), "confirm", Q_RETURN_ARG(int, result),
                                          Q_ARG(QWidget &, source), Q_ARG(QString, QStringLiteral("Reset")),
                                          Q_ARG(QString, QStringLiteral("Sure?"))));
        QCOMPARE(result, 1);
        QCOMPARE(recorder.source, &source);
        QCOMPARE(recorder.title, QStringLiteral("Reset"));
        QCOMPARE(recorder.message, QStringLiteral("Sure?"));
        QCOMPARE(recorder.icon, QMessageBox::NoIcon);
    }

    void invokeWithIcon()
    {
        Recorder recorder(3);
        ExternalMessageBox::instance()->setImplementation(&recorder);
        QWidget source;
        int result = -1;
        QVERIFY(QMetaObject::invokeMethod(ExternalMessageBox::instance(), "information", Q_RETURN_ARG(int, result),
                                          Q_ARG(QWidget &, source), Q_ARG(QString, QStringLiteral("T")),
                                          Q_ARG(QString, QStringLiteral("M")),
                                          Q_ARG(QMessageBox::Icon, QMessageBox::Warning)));
        QCOMPARE(result, 103);
        QCOMPARE(recorder.calls, QStringList{QStringLiteral("information")});
        QCOMPARE(recorder.icon, QMessageBox::Warning);
    }

    void invokeWithoutImplementationReturnsZero()
    {
        QWidget source;
        int result = -1;
        QVERIFY(QMetaObject::invokeMethod(ExternalMessageBox::instance(), "confirm", Q_RETURN_ARG(int, result),
                                          Q_ARG(QWidget &, source), Q_ARG(QString, QString()),
                                          Q_ARG(QString, QString())));
        QCOMPARE(result, 0);
    }
};

QTEST_MAIN(tst_ExternalMessageBox)
#include "tst_ExternalMessageBox.moc"
