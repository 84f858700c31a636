// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/qtToolkit.h>
#include <ko/qtToolkit/dialog/Keypad.h>
#include <ko/qtToolkit/widget/Button.h>
#include <ko/qtToolkit/widget/ButtonGroup.h>
#include <ko/qtToolkit/widget/ComboBox.h>
#include <ko/qtToolkit/widget/ElidedButton.h>
#include <ko/qtToolkit/widget/ElidedLabel.h>
#include <ko/qtToolkit/widget/Fader.h>
#include <ko/qtToolkit/widget/GenericDataFader.h>
#include <ko/qtToolkit/widget/HeaderViewWidget_p.h>
#include <ko/qtToolkit/widget/Keypad.h>
#include <ko/qtToolkit/widget/LevelMeter.h>
#include <ko/qtToolkit/widget/ListWidget.h>
#include <ko/qtToolkit/widget/TableWidget.h>
#include <ko/qtToolkit/widget/TextEntry.h>
#include <ko/qtToolkit/widget/ToggleButtonGroup.h>
#include <ko/qtToolkit/widget/listWithButtons/ListWrapper.h>
#include <ko/qtToolkit/widget/listWithButtons/NavigatorButtonNext.h>
#include <ko/qtToolkit/widget/listWithButtons/NavigatorButtonPrevious.h>
#include <ko/qtToolkit/widget/listWithButtons/WidgetBase.h>

#include <TestSupport.h>

#include <QtGui/private/qcssparser_p.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>
#include <optional>

namespace {

struct Rule
{
    QString selector;     // selectors as written, white space folded
    QString declarations; // declarations, white space folded
    int position;         // index of the rule in the file
};

QString folded(const QString &text)
{
    return text.simplified();
}

// The sheet's rules in file order, comments removed.
QVector<Rule> rulesOf(QString text)
{
    text.remove(QRegularExpression(QStringLiteral("/\\*.*?\\*/"),
                                   QRegularExpression::DotMatchesEverythingOption));
    QVector<Rule> rules;
    const QStringList blocks = text.split(QLatin1Char('}'), Qt::SkipEmptyParts);
    for (const QString &block : blocks) {
        const int brace = block.indexOf(QLatin1Char('{'));
        if (brace < 0)
            continue;
        rules.append({folded(block.left(brace)), folded(block.mid(brace + 1)), int(rules.size())});
    }
    return rules;
}

// All rules naming \a selector, merged: the first one's position, every declaration.
std::optional<Rule> findRule(const QVector<Rule> &rules, const QString &selector)
{
    std::optional<Rule> found;
    for (const Rule &rule : rules) {
        const QStringList selectors = rule.selector.split(QLatin1Char(','));
        const bool names = std::any_of(selectors.begin(), selectors.end(),
                                       [&](const QString &s) { return folded(s) == selector; });
        if (!names)
            continue;
        if (found)
            found->declarations += QLatin1Char(' ') + rule.declarations;
        else
            found = rule;
    }
    return found;
}

class FixedTable : public ko::qtToolkit::widget::TableWidget
{
public:
    QSize headerSectionSize(Qt::Orientation) const override { return {60, 24}; }
};

// One instance of each widget class of the library, by class name, inside \a host.
QWidget *createLibraryWidget(const QString &name, QWidget *host)
{
    namespace w = ko::qtToolkit::widget;
    namespace lwb = ko::qtToolkit::widget::listWithButtons;
    if (name == QLatin1String("Button"))
        return new w::Button(QStringLiteral("Button"), host);
    if (name == QLatin1String("ButtonGroup")) {
        auto *group = new w::ButtonGroup(host);
        group->addButton(QStringLiteral("A"), true);
        group->addButton(QStringLiteral("B"), false);
        return group;
    }
    if (name == QLatin1String("ToggleButtonGroup"))
        return new w::ToggleButtonGroup(host);
    if (name == QLatin1String("ElidedLabel"))
        return new w::ElidedLabel(QStringLiteral("A rather long label text"), host);
    if (name == QLatin1String("ElidedButton"))
        return new w::ElidedButton(QStringLiteral("A rather long caption"), host);
    if (name == QLatin1String("ComboBox")) {
        auto *combo = new w::ComboBox(host);
        combo->addItems({QStringLiteral("a"), QStringLiteral("b")});
        return combo;
    }
    if (name == QLatin1String("ListWidget")) {
        auto *list = new w::ListWidget(host);
        list->addItem(new w::Button(QStringLiteral("Row")));
        return list;
    }
    if (name == QLatin1String("TableWidget")) {
        auto *table = new FixedTable;
        table->setParent(host);
        table->setColumnCount(2);
        table->setWidgetForHeaderSection(0, Qt::Horizontal, new w::Button(QStringLiteral("Head")));
        return table;
    }
    if (name == QLatin1String("HeaderViewWidget"))
        return new w::HeaderViewWidget(Qt::Horizontal, host);
    if (name == QLatin1String("Fader"))
        return new w::Fader(Qt::Vertical, host);
    if (name == QLatin1String("GenericDataFader"))
        return new w::GenericDataFader(Qt::Vertical, host);
    if (name == QLatin1String("LevelMeter"))
        return new w::LevelMeter(host);
    if (name == QLatin1String("widget::Keypad"))
        return new w::Keypad(host);
    if (name == QLatin1String("TextEntry"))
        return new w::TextEntry(QStringLiteral("1.00"), host);
    if (name == QLatin1String("dialog::Keypad")) {
        auto *keypad = new ko::qtToolkit::dialog::Keypad;
        keypad->setParent(host, keypad->windowFlags());
        return keypad;
    }
    if (name == QLatin1String("ListWrapper"))
        return new lwb::ListWrapper(QStringLiteral("Items"), host);
    if (name == QLatin1String("WidgetBase"))
        return new lwb::WidgetBase(QStringLiteral("Items"), lwb::Direction::Vertical, host);
    if (name == QLatin1String("NavigatorButtonNext"))
        return new lwb::NavigatorButtonNext(QStringLiteral("Next"), lwb::Direction::Vertical,
                                            *new QScrollBar(Qt::Vertical, host), host);
    if (name == QLatin1String("NavigatorButtonPrevious"))
        return new lwb::NavigatorButtonPrevious(QStringLiteral("Prev"), lwb::Direction::Vertical,
                                                *new QScrollBar(Qt::Vertical, host), host);
    return nullptr;
}

} // namespace

class tst_StyleSheet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCOMPARE(ko::qtToolkit::getInterfaceVersion(), 101u);
    }

    void parsesAsQtStyleSheet()
    {
        const QString text = ko::qtToolkit::test::toolkitStyleSheet();
        QVERIFY(!text.isEmpty());
        QCss::Parser parser(text);
        QCss::StyleSheet sheet;
        QVERIFY(parser.parse(&sheet));
        // Rules with a plain type selector are indexed by that name, the others kept in a list.
        QVERIFY(sheet.styleRules.size() + sheet.nameIndex.size() > 100);
    }

    // Every standard widget class the sheet styles, polished under it, logs nothing.
    void appliesWithoutWarnings()
    {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *checked = new QPushButton(QStringLiteral("checked"));
        checked->setCheckable(true);
        checked->setChecked(true);
        auto *close = new QPushButton;
        close->setProperty("class", QStringLiteral("close"));
        auto *combo = new QComboBox;
        combo->addItems({QStringLiteral("a"), QStringLiteral("b")});
        auto *critical = new QPushButton(QStringLiteral("critical"));
        critical->setCheckable(true);
        critical->setChecked(true);
        critical->setProperty("class", QStringLiteral("critical"));
        auto *tabs = new QTabWidget;
        tabs->addTab(new QLabel(QStringLiteral("tab")), QStringLiteral("Tab"));
        auto *table = new QTableWidget(3, 3);
        auto *menu = new QMenu(&window);
        menu->addAction(QStringLiteral("item"));
        menu->addSeparator();
        const QList<QWidget *> widgets{checked, close, combo, critical, new QLineEdit,
                                       new QSpinBox, new QDoubleSpinBox, new QLabel(QStringLiteral("label")),
                                       new QSlider(Qt::Horizontal), new QSlider(Qt::Vertical),
                                       new QGroupBox(QStringLiteral("group")), new QCheckBox, new QRadioButton,
                                       tabs, table, new QListView, new QScrollBar(Qt::Horizontal),
                                       new QScrollBar(Qt::Vertical)};
        for (QWidget *widget : widgets)
            layout->addWidget(widget);

        static QStringList messages;
        messages.clear();
        const QtMessageHandler previous = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &message) {
                // The offscreen platform's own remark about top-level windows is not ours.
                if (!message.contains(QLatin1String("propagateSizeHints")))
                    messages << message;
            });
        qApp->setStyleSheet(ko::qtToolkit::test::toolkitStyleSheet());
        window.show();
        menu->ensurePolished();
        table->horizontalHeader()->ensurePolished();
        QApplication::processEvents();
        window.grab();
        qInstallMessageHandler(previous);

        QVERIFY2(messages.isEmpty(), qPrintable(messages.join(QLatin1Char('\n'))));

        // The sheet does reach the widgets: a checked push button is flat #333333 and a close
        // button is 13 by 13.
        QCOMPARE(checked->grab().toImage().pixelColor(checked->width() / 2, 3).name(), QStringLiteral("#333333"));
        QCOMPARE(close->size(), QSize(13, 13));
        QCOMPARE(static_cast<QLabel *>(widgets.at(7))->alignment(), Qt::AlignCenter);
        qApp->setStyleSheet(QString());
    }

    void rules_data()
    {
        QTest::addColumn<QString>("selector");
        QTest::addColumn<QStringList>("declarations");

        auto row = [](const char *selector, QStringList declarations, const char *name = nullptr) {
            QTest::newRow(name ? name : selector) << QString::fromLatin1(selector) << declarations;
        };
        using L = QStringList;
        // 1. Global
        row("*", L{QStringLiteral("outline: none;")});
        row("*[class=critical]:checked",
            L{QStringLiteral("qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #de4242, stop: 1 #cf2a2a)"),
              QStringLiteral("color: white;")});
        row("*[class=critical]:checked:hover", L{QStringLiteral("#f54949"), QStringLiteral("#f03131")});
        row("*[class=critical]:checked:disabled",
            L{QStringLiteral("color: lightgray;"), QStringLiteral("#c78585"), QStringLiteral("#b56363")});
        // 2. Push buttons and combo boxes
        row("QPushButton", L{QStringLiteral("color: white;"), QStringLiteral("border: 1 solid #575757;"),
                             QStringLiteral("stop:0 #adadad, stop: 0.5 #666666")});
        row("QComboBox", L{QStringLiteral("color: white;"), QStringLiteral("border: 1 solid #575757;"),
                           QStringLiteral("stop:0 #adadad, stop: 0.5 #666666")});
        row("QPushButton:hover", L{QStringLiteral("#9a9a9a"), QStringLiteral("#444444")});
        row("QPushButton:pressed", L{QStringLiteral("#919191"), QStringLiteral("#333333")});
        row("QPushButton:checked", L{QStringLiteral("background: #333333;")});
        row("QPushButton:checked:disabled", L{QStringLiteral("background: #4c4c4c;")});
        row("QPushButton:disabled", L{QStringLiteral("border: 1 solid #858585;"), QStringLiteral("#c5c5c5"),
                                      QStringLiteral("#999999")});
        row("QComboBox:hover", L{QStringLiteral("#9a9a9a"), QStringLiteral("#444444")});
        row("QComboBox:pressed", L{QStringLiteral("#919191"), QStringLiteral("#333333")});
        row("QComboBox:disabled", L{QStringLiteral("border: 1 solid #858585;"), QStringLiteral("#c5c5c5"),
                                    QStringLiteral("#999999")});
        // 3. Line edits and spin boxes
        row("QLineEdit", L{QStringLiteral("border: 1 solid #8a8a8a;"), QStringLiteral("#b6b6b6"),
                           QStringLiteral("selection-color: #333333;"),
                           QStringLiteral("selection-background-color: #f1f1f1;")});
        row("QLabel", L{QStringLiteral("qproperty-alignment: AlignCenter;")});
        row("QLineEdit", L{QStringLiteral("qproperty-alignment: AlignCenter;")}, "QLineEdit alignment");
        row("QAbstractSpinBox", L{QStringLiteral("border: 1 solid #8a8a8a;"), QStringLiteral("#b6b6b6"),
                                  QStringLiteral("selection-color: #333333;"),
                                  QStringLiteral("selection-background-color: #f1f1f1;")},
            "QAbstractSpinBox border");
        row("QAbstractSpinBox", L{QStringLiteral("qproperty-alignment: AlignLeft;")});
        // 4. Sliders and faders
        row("QSlider::groove:horizontal", L{});
        row("QSlider::handle:vertical", L{});
        row("QSlider::groove:vertical", L{});
        row("QSlider::handle:horizontal", L{});
        row("QSlider::handle:hover", L{});
        row("QSlider::handle:disabled", L{});
        row("ko--qtToolkit--widget--Fader::handle", L{});
        row("ko--qtToolkit--widget--Fader:horizontal", L{});
        row("ko--qtToolkit--widget--Fader:vertical", L{});
        row("ko--qtToolkit--widget--Fader::handle:disabled", L{});
        row("ko--qtToolkit--widget--Fader::handle:hover", L{});
        row("ko--qtToolkit--widget--Fader[class=fine]::handle:vertical", L{});
        row("ko--qtToolkit--widget--Fader[class=fine]::handle:horizontal", L{});
        row("ko--qtToolkit--widget--Fader[class=coarse]::handle:vertical", L{});
        row("ko--qtToolkit--widget--Fader[class=coarse]::handle:horizontal", L{});
        row("ko--qtToolkit--widget--GenericDataFader:vertical", L{});
        // 5. Keypads
        row("ko--qtToolkit--dialog--Keypad", L{});
        row("ko--qtToolkit--dialog--Keypad QGroupBox", L{});
        row("ko--qtToolkit--widget--Keypad QPushButton", L{});
        // 6. Group boxes, item views, headers
        row("QGroupBox", L{QStringLiteral("border: 2 solid #555555;"), QStringLiteral("border-radius: 8;")});
        row("QGroupBox::title", L{QStringLiteral("subcontrol-position: top center;")});
        row("QAbstractItemView::item:selected", L{QStringLiteral("background-color: palette(Base);")});
        row("QAbstractItemView::item:hover", L{QStringLiteral("background-color: palette(Base);")});
        row("QComboBox QAbstractItemView::item:hover", L{QStringLiteral("#7070CC")});
        row("QComboBox QAbstractItemView::item:selected", L{QStringLiteral("#333333"), QStringLiteral("#f1f1f1")});
        row("QComboBox QAbstractItemView::item:selected:hover", L{QStringLiteral("#838383")});
        row("QHeaderView::section", L{QStringLiteral("#f0f0f0"), QStringLiteral("border: 1 solid white;")});
        // 7. Check boxes and radio buttons
        row("QCheckBox::indicator", L{QStringLiteral("width: 18;"), QStringLiteral("height: 18;")});
        row("QCheckBox::indicator:checked", L{QStringLiteral("url(:/ic_check_box_black_24px.svg)")});
        row("QCheckBox::indicator:checked:disabled", L{QStringLiteral("url(:/ic_check_box_gray_24px.svg)")});
        row("QRadioButton::indicator", L{QStringLiteral("width: 18;"), QStringLiteral("height: 18;")});
        row("QCheckBox::indicator:unchecked", L{QStringLiteral("url(:/ic_check_box_outline_blank_black_24px.svg)")});
        row("QCheckBox::indicator:unchecked:disabled",
            L{QStringLiteral("url(:/ic_check_box_outline_blank_gray_24px.svg)")});
        row("QCheckBox::indicator:indeterminate", L{QStringLiteral("url(:/ic_indeterminate_check_box_black_24px.svg)")});
        row("QCheckBox::indicator:indeterminate:disabled",
            L{QStringLiteral("url(:/ic_indeterminate_check_box_gray_24px.svg)")});
        row("QRadioButton::indicator:unchecked", L{QStringLiteral("url(:/ic_radio_button_unchecked_black_24px.svg)")});
        row("QRadioButton::indicator:checked:disabled",
            L{QStringLiteral("url(:/ic_radio_button_checked_gray_24px.svg)")});
        row("QRadioButton::indicator:checked", L{QStringLiteral("url(:/ic_radio_button_checked_black_24px.svg)")});
        row("QRadioButton::indicator:unchecked:disabled",
            L{QStringLiteral("url(:/ic_radio_button_unchecked_gray_24px.svg)")});
        // 8. Spin buttons, arrows, combo-box drop-down
        row("*::up-button", L{});
        row("*::down-button", L{});
        row("*::up-arrow", L{QStringLiteral("url(:/ic_arrow_drop_up_black_24px.svg)")});
        row("*::down-arrow", L{QStringLiteral("url(:/ic_arrow_drop_down_black_24px.svg)")});
        row("*::up-arrow:disabled", L{QStringLiteral("url(:/ic_arrow_drop_up_gray_24px.svg)")});
        row("*::up-arrow:off", L{QStringLiteral("url(:/ic_arrow_drop_up_gray_24px.svg)")});
        row("*::down-arrow:off", L{QStringLiteral("url(:/ic_arrow_drop_down_gray_24px.svg)")});
        row("*::down-arrow:disabled", L{QStringLiteral("url(:/ic_arrow_drop_down_gray_24px.svg)")});
        row("QMenu::right-arrow", L{QStringLiteral("url(:/ic_arrow_drop_right_black_24px.svg)")});
        row("QMenu::right-arrow:disabled", L{QStringLiteral("url(:/ic_arrow_drop_right_gray_24px.svg)")});
        row("QComboBox::drop-down", L{});
        row("QComboBox::down-arrow", L{QStringLiteral("url(:/ic_arrow_drop_updown_white_24px.svg)"),
                                       QStringLiteral("width: 24;"), QStringLiteral("height: 24;")});
        row("QComboBox::down-arrow:disabled", L{QStringLiteral("url(:/ic_arrow_drop_updown_gray_24px.svg)")});
        // 9. Tabs
        row("QTabWidget::pane", L{QStringLiteral("border: 1 solid black;"), QStringLiteral("background: white;")});
        row("QTabBar::tab:top", L{QStringLiteral("margin-right:")});
        row("QTabBar::tab:left", L{QStringLiteral("margin-bottom:")});
        row("QTabBar::tab:bottom", L{QStringLiteral("margin-right:")});
        row("QTabBar::tab:right", L{QStringLiteral("margin-bottom:")});
        // 10. Close buttons
        row("QPushButton[class=close]",
            L{QStringLiteral("border: none;"), QStringLiteral("min-width: 13;"), QStringLiteral("max-width: 13;"),
              QStringLiteral("min-height: 13;"), QStringLiteral("max-height: 13;"),
              QStringLiteral("url(:/ic_cross_darkgray_24px.svg)")});
        row("QPushButton[class=close]:hover", L{QStringLiteral("url(:/ic_cross_red_24px.svg)")});
        // 11. Button groups
        row("ko--qtToolkit--widget--ButtonGroup QPushButton", L{QStringLiteral("border-radius: 0;")});
        row("ko--qtToolkit--widget--ButtonGroup QPushButton[top=true]",
            L{QStringLiteral("border-top-left-radius: 4;"), QStringLiteral("border-top-right-radius: 4;"),
              QStringLiteral("padding-bottom: 5;")});
        row("ko--qtToolkit--widget--ButtonGroup QPushButton[bottom=true]",
            L{QStringLiteral("border-bottom-left-radius: 4;"), QStringLiteral("border-bottom-right-radius: 4;"),
              QStringLiteral("padding-top: 5;")});
        // 12. Scroll bars
        row("QScrollBar::handle", L{QStringLiteral("border: 1 solid #797979;")});
        row("QScrollBar::left-arrow:horizontal", L{QStringLiteral("url(:/scrollbar-arrow-left.png)")});
        row("QScrollBar::right-arrow:horizontal", L{QStringLiteral("url(:/scrollbar-arrow-right.png)")});
        row("QScrollBar::up-arrow:vertical", L{QStringLiteral("url(:/scrollbar-arrow-up.png)")});
        row("QScrollBar::down-arrow:vertical", L{QStringLiteral("url(:/scrollbar-arrow-down.png)")});
        // 13. Menus
        row("QMenu::item", L{});
        row("QMenu::separator", L{});
        row("QMenu::indicator", L{});
        // 14. Navigator buttons
        row("ko--qtToolkit--widget--listWithButtons--NavigatorButton",
            L{QStringLiteral("border: none;"), QStringLiteral("background: transparent;")});
        row("ko--qtToolkit--widget--listWithButtons--NavigatorButton:disabled",
            L{QStringLiteral("border: none;"), QStringLiteral("background: transparent;")});
        row("ko--qtToolkit--widget--listWithButtons--NavigatorButton:hover",
            L{QStringLiteral("border: none;"), QStringLiteral("background: transparent;")});
        row("ko--qtToolkit--widget--listWithButtons--NavigatorButton:pressed",
            L{QStringLiteral("border: none;"), QStringLiteral("background: transparent;")});
        row("ko--qtToolkit--widget--listWithButtons--NavigatorButton[arrowType=right]",
            L{QStringLiteral("min-width: 26;"), QStringLiteral("max-width: 26;")});
        row("ko--qtToolkit--widget--listWithButtons--NavigatorButton[arrowType=down]",
            L{QStringLiteral("min-height: 26;"), QStringLiteral("max-height: 26;")});
        row("ko--qtToolkit--widget--listWithButtons--NavigatorButton[arrowType=left]",
            L{QStringLiteral("min-width: 26;"), QStringLiteral("max-width: 26;")});
        row("ko--qtToolkit--widget--listWithButtons--NavigatorButton[arrowType=up]",
            L{QStringLiteral("min-height: 26;"), QStringLiteral("max-height: 26;")});
        row("ko--qtToolkit--widget--listWithButtons--NavigatorButton[arrowType=right]:disabled",
            L{QStringLiteral("url(:/ic_arrow_drop_right_gray_24px.svg)")});
        row("ko--qtToolkit--widget--listWithButtons--NavigatorButton[arrowType=down]:disabled",
            L{QStringLiteral("url(:/ic_arrow_drop_down_gray_24px.svg)")});
    }

    void rules()
    {
        QFETCH(QString, selector);
        QFETCH(QStringList, declarations);
        const QVector<Rule> all = rulesOf(ko::qtToolkit::test::toolkitStyleSheet());
        const std::optional<Rule> rule = findRule(all, selector);
        QVERIFY2(rule, qPrintable(selector));
        for (const QString &declaration : declarations)
            QVERIFY2(rule->declarations.contains(declaration), qPrintable(declaration));
    }

    void navigatorArrowsPerDirection_data()
    {
        QTest::addColumn<QString>("arrowType");
        for (const char *direction : {"left", "right", "up", "down"})
            QTest::newRow(direction) << QString::fromLatin1(direction);
    }

    void navigatorArrowsPerDirection()
    {
        QFETCH(QString, arrowType);
        const QVector<Rule> all = rulesOf(ko::qtToolkit::test::toolkitStyleSheet());
        const QString base = QStringLiteral("ko--qtToolkit--widget--listWithButtons--NavigatorButton[arrowType=%1]")
                                 .arg(arrowType);
        const std::optional<Rule> normal = findRule(all, base);
        const std::optional<Rule> disabled = findRule(all, base + QStringLiteral(":disabled"));
        QVERIFY(normal && disabled);
        QVERIFY(normal->declarations.contains(QStringLiteral("url(:/ic_arrow_drop_%1_black_24px.svg)").arg(arrowType)));
        QVERIFY(disabled->declarations.contains(QStringLiteral("url(:/ic_arrow_drop_%1_gray_24px.svg)").arg(arrowType)));
    }

    // Sections follow one another in a fixed order: the first rule of each comes after the
    // first rule of the section before.
    void sectionOrder()
    {
        const QVector<Rule> all = rulesOf(ko::qtToolkit::test::toolkitStyleSheet());
        const char *firstOfSection[] = {
            "*",
            "QPushButton",
            "QLineEdit",
            "QSlider::groove:horizontal",
            "ko--qtToolkit--dialog--Keypad",
            "QGroupBox",
            "QCheckBox::indicator",
            "*::up-button",
            "QTabWidget::pane",
            "QPushButton[class=close]",
            "ko--qtToolkit--widget--ButtonGroup QPushButton",
            "QScrollBar::handle",
            "QMenu::item",
            "ko--qtToolkit--widget--listWithButtons--NavigatorButton",
        };
        int previous = -1;
        for (const char *selector : firstOfSection) {
            const std::optional<Rule> rule = findRule(all, QString::fromLatin1(selector));
            QVERIFY2(rule, selector);
            QVERIFY2(rule->position > previous, selector);
            previous = rule->position;
        }
    }

    void sectionComments()
    {
        const QString text = ko::qtToolkit::test::toolkitStyleSheet();
        int previous = -1;
        for (const char *comment : {"/* Do not highlight items */", "/* ButtonGroup with rounded top/bottom buttons */",
                                    "/* Global Scrollbar */", "/* Horizontal Scrollbar */", "/* Vertical Scrollbar */",
                                    "/* QMenu */"}) {
            const int at = text.indexOf(QLatin1String(comment));
            QVERIFY2(at > previous, comment);
            previous = at;
        }
    }

    void lengthsHaveNoUnits()
    {
        const QVector<Rule> all = rulesOf(ko::qtToolkit::test::toolkitStyleSheet());
        const QRegularExpression pixels(QStringLiteral("\\b\\d+px\\b"));
        for (const Rule &rule : all) {
            QVERIFY2(!rule.declarations.contains(pixels), qPrintable(rule.selector));
        }
    }

    // Without the sheet, widgets keep Qt's default look: nothing installs a sheet by itself.
    void notAppliedByTheLibrary()
    {
        QVERIFY(qApp->styleSheet().isEmpty());
        QPushButton button;
        button.ensurePolished();
        QVERIFY(button.styleSheet().isEmpty());
        QVERIFY(qstrcmp(button.style()->metaObject()->className(), "QStyleSheetStyle") != 0);
    }

    void libraryWidgetsUseDefaultLook_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"Button", "ButtonGroup", "ToggleButtonGroup", "ElidedLabel", "ElidedButton",
                                 "ComboBox", "ListWidget", "TableWidget", "HeaderViewWidget", "Fader",
                                 "GenericDataFader", "LevelMeter", "widget::Keypad", "TextEntry", "dialog::Keypad",
                                 "ListWrapper", "WidgetBase", "NavigatorButtonNext", "NavigatorButtonPrevious"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    // Every widget class of the library, shown with no sheet applied, keeps the application's
    // plain style: neither it nor any child it creates installs a sheet.
    void libraryWidgetsUseDefaultLook()
    {
        QFETCH(QString, name);
        QVERIFY(qApp->styleSheet().isEmpty());
        QWidget host;
        host.resize(320, 480);
        QWidget *widget = createLibraryWidget(name, &host);
        QVERIFY(widget);
        host.show();
        widget->show();
        QVERIFY(QTest::qWaitForWindowExposed(&host));
        QVERIFY(widget->isVisible());
        QList<QWidget *> all = widget->findChildren<QWidget *>();
        all.prepend(widget);
        for (QWidget *each : qAsConst(all)) {
            each->ensurePolished();
            QVERIFY2(each->styleSheet().isEmpty(), each->metaObject()->className());
            QVERIFY2(qstrcmp(each->style()->metaObject()->className(), "QStyleSheetStyle") != 0,
                     each->metaObject()->className());
            QCOMPARE(each->style(), QApplication::style());
        }
    }
};

QTEST_MAIN(tst_StyleSheet)
#include "tst_StyleSheet.moc"
