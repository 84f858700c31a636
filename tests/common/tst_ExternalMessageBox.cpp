// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/common/ExternalMessageBox.h>

#include <QTest>
#include <QWidget>

#include <memory>
#include <type_traits>

using ko::qtToolkit::common::ExternalMessageBox;

namespace {

// Counts its own destruction so that deletion through the interface can be checked.
class Counting : public ExternalMessageBox
{
public:
    explicit Counting(int &destroyed)
        : m_destroyed(destroyed)
    {
    }
    ~Counting() override { ++m_destroyed; }

    int confirm(QWidget &source, const QString &title, const QString &message, QMessageBox::Icon icon) const override
    {
        lastSource = &source;
        lastTitle = title;
        lastMessage = message;
        lastIcon = icon;
        return QMessageBox::Yes;
    }

    int information(QWidget &source, const QString &title, const QString &message,
                    QMessageBox::Icon icon) const override
    {
        lastSource = &source;
        lastTitle = title;
        lastMessage = message;
        lastIcon = icon;
        return QMessageBox::Ok;
    }

    mutable QWidget *lastSource = nullptr;
    mutable QString lastTitle;
    mutable QString lastMessage;
    mutable QMessageBox::Icon lastIcon = QMessageBox::NoIcon;

private:
    int &m_destroyed;
};

} // namespace

class tst_ExternalMessageBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void callsReachTheImplementation()
    {
        int destroyed = 0;
        Counting implementation(destroyed);
        const ExternalMessageBox &box = implementation;
        QWidget source;

        QCOMPARE(box.confirm(source, QStringLiteral("Reset"), QStringLiteral("Sure?"), QMessageBox::Question),
                 int(QMessageBox::Yes));
        QCOMPARE(implementation.lastSource, &source);
        QCOMPARE(implementation.lastTitle, QStringLiteral("Reset"));
        QCOMPARE(implementation.lastMessage, QStringLiteral("Sure?"));
        QCOMPARE(implementation.lastIcon, QMessageBox::Question);

        QCOMPARE(box.information(source, QStringLiteral("Done"), QStringLiteral("Saved"), QMessageBox::Information),
                 int(QMessageBox::Ok));
        QCOMPARE(implementation.lastTitle, QStringLiteral("Done"));
        QCOMPARE(implementation.lastMessage, QStringLiteral("Saved"));
        QCOMPARE(implementation.lastIcon, QMessageBox::Information);
    }

    void deletionThroughTheInterface()
    {
        int destroyed = 0;
        std::unique_ptr<ExternalMessageBox> box = std::make_unique<Counting>(destroyed);
        box.reset();
        QCOMPARE(destroyed, 1);
    }

    void isAnAbstractInterface()
    {
        QVERIFY(std::is_abstract_v<ExternalMessageBox>);
        QVERIFY(std::has_virtual_destructor_v<ExternalMessageBox>);
        QVERIFY((!std::is_base_of_v<QObject, ExternalMessageBox>));
    }
};

QTEST_MAIN(tst_ExternalMessageBox)
#include "tst_ExternalMessageBox.moc"
