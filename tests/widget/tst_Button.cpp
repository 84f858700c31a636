// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/Button.h>

#include <QApplication>
#include <QIcon>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

using ko::qtToolkit::widget::Button;

namespace {

enum class Constructor { ParentOnly, Text, IconAndText };

std::unique_ptr<Button> make(Constructor constructor, QWidget *parent)
{
    switch (constructor) {
    case Constructor::ParentOnly:
        return std::make_unique<Button>(parent);
    case Constructor::Text:
        return std::make_unique<Button>(QStringLiteral("Mute"), parent);
    case Constructor::IconAndText:
        return std::make_unique<Button>(QIcon(QStringLiteral(":/ic_cross_red_24px.svg")), QStringLiteral("Close"),
                                        parent);
    }
    return nullptr;
}

} // namespace

Q_DECLARE_METATYPE(Constructor)

class tst_Button : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructors_data()
    {
        QTest::addColumn<Constructor>("constructor");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("hasIcon");
        QTest::newRow("parent only") << Constructor::ParentOnly << QString() << false;
        QTest::newRow("text") << Constructor::Text << QStringLiteral("Mute") << false;
        QTest::newRow("icon and text") << Constructor::IconAndText << QStringLiteral("Close") << true;
    }

    void constructors()
    {
        QFETCH(Constructor, constructor);
        QFETCH(QString, text);
        QFETCH(bool, hasIcon);
        QWidget parent;
        const std::unique_ptr<Button> button = make(constructor, &parent);
        QCOMPARE(button->focusPolicy(), Qt::NoFocus);
        QCOMPARE(button->text(), text);
        QCOMPARE(!button->icon().isNull(), hasIcon);
        QCOMPARE(button->parentWidget(), &parent);
        QVERIFY(!button->isCheckable());
    }

    void clickKeepsFocusOnTheEntry_data()
    {
        constructors_data();
    }

    // Touching a button must leave the keyboard focus where the user was typing.
    void clickKeepsFocusOnTheEntry()
    {
        QFETCH(Constructor, constructor);
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *entry = new QLineEdit;
        layout->addWidget(entry);
        const std::unique_ptr<Button> button = make(constructor, nullptr);
        layout->addWidget(button.get());
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        entry->setFocus();
        QCOMPARE(QApplication::focusWidget(), entry);

        QSignalSpy clicked(button.get(), &QAbstractButton::clicked);
        QTest::mouseClick(button.get(), Qt::LeftButton);
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(QApplication::focusWidget(), entry);
        QVERIFY(!button->hasFocus());
    }

    void tabSkipsTheButton_data()
    {
        constructors_data();
    }

    void tabSkipsTheButton()
    {
        QFETCH(Constructor, constructor);
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *first = new QLineEdit;
        auto *second = new QLineEdit;
        layout->addWidget(first);
        const std::unique_ptr<Button> button = make(constructor, nullptr);
        layout->addWidget(button.get());
        layout->addWidget(second);
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        first->setFocus();

        QTest::keyClick(first, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), second);
        QTest::keyClick(second, Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), first);
    }
};

QTEST_MAIN(tst_Button)
#include "tst_Button.moc"
