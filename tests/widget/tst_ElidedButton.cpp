// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/ElidedButton.h>

#include <FullTextToolTipChecks.h>
#include <TestSupport.h>

#include <QFontMetrics>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QTest>

using ko::qtToolkit::widget::ElidedButton;

namespace {

const QString longText = QStringLiteral("Recall scene seventeen");

// Records what the button asks of its style.
class RecordingStyle : public QProxyStyle
{
public:
    RecordingStyle()
        : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
    {
    }

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option)) {
            if (element == CE_PushButton)
                bodies.append(*button);
            else if (element == CE_PushButtonLabel)
                labels.append(*button);
        }
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    QRect subElementRect(SubElement element, const QStyleOption *option, const QWidget *widget) const override
    {
        if (element == SE_PushButtonContents)
            ++contentsQueries;
        return QProxyStyle::subElementRect(element, option, widget);
    }

    void clear()
    {
        bodies.clear();
        labels.clear();
        contentsQueries = 0;
    }

    mutable QList<QStyleOptionButton> bodies;
    mutable QList<QStyleOptionButton> labels;
    mutable int contentsQueries = 0;
};

QRect contentsRect(const ElidedButton &button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    return button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button);
}

// The caption the button should paint at its current width.
QString expectedCaption(const ElidedButton &button, const QString &text)
{
    return QFontMetrics(button.font()).elidedText(text, Qt::ElideRight,
                                                  contentsRect(button).width() - button.iconSize().width() - 4,
                                                  Qt::TextShowMnemonic);
}

// A width at which \a text fits the contents, but not once the icon's width is taken off.
int widthFittingWithoutIconOnly(ElidedButton &button, const QString &text)
{
    const int textWidth = QFontMetrics(button.font()).horizontalAdvance(text);
    button.resize(200, 30);
    const int frame = button.width() - contentsRect(button).width();
    return textWidth + frame + 4 + button.iconSize().width() / 2;
}

} // namespace

class tst_ElidedButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        ko::qtToolkit::test::useFixedFont();
    }

    void init()
    {
        m_style.clear();
    }

    void constructors()
    {
        QWidget parent;
        const ElidedButton plain(&parent);
        QCOMPARE(plain.parentWidget(), &parent);
        QVERIFY(plain.text().isEmpty());
        QCOMPARE(plain.focusPolicy(), Qt::NoFocus);

        const ElidedButton captioned(longText);
        QCOMPARE(captioned.text(), longText);
        QCOMPARE(captioned.focusPolicy(), Qt::NoFocus);

        const ElidedButton withIcon(QIcon(QStringLiteral(":/ic_cross_red_24px.svg")), longText);
        QVERIFY(!withIcon.icon().isNull());
        QCOMPARE(withIcon.text(), longText);
        QCOMPARE(withIcon.focusPolicy(), Qt::NoFocus);
    }

    void paintsTheElidedCaption_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("width");
        QTest::addColumn<bool>("withIcon");
        QTest::addColumn<bool>("elided");
        QTest::newRow("narrow") << longText << 80 << false << true;
        QTest::newRow("narrow with icon") << longText << 110 << true << true;
        QTest::newRow("wide enough") << longText << 300 << false << false;
        QTest::newRow("wide enough with icon") << longText << 320 << true << false;
        // The icon's width is reserved whether or not there is an icon.
        QTest::newRow("fits only without the icon's room") << longText << -1 << false << true;
        // A mnemonic marker takes no room.
        QTest::newRow("mnemonic") << QStringLiteral("&Save") << -2 << false << false;
    }

    void paintsTheElidedCaption()
    {
        QFETCH(QString, text);
        QFETCH(int, width);
        QFETCH(bool, withIcon);
        QFETCH(bool, elided);
        ElidedButton button(text);
        button.setStyle(&m_style);
        if (withIcon)
            button.setIcon(QIcon(QStringLiteral(":/ic_cross_red_24px.svg")));
        if (width == -1) {
            width = widthFittingWithoutIconOnly(button, text);
        } else if (width == -2) {
            button.resize(200, 30);
            const int frame = button.width() - contentsRect(button).width();
            width = QFontMetrics(button.font()).horizontalAdvance(QStringLiteral("Save")) + frame + 4 +
                    button.iconSize().width() + 1;
        }
        button.resize(width, 30);
        button.grab();

        const QString caption = expectedCaption(button, text);
        QCOMPARE(caption != text, elided);
        QVERIFY(!m_style.labels.isEmpty());
        const QStyleOptionButton label = m_style.labels.last();
        QCOMPARE(label.text, caption);
        QCOMPARE(label.icon.isNull(), !withIcon);

        QStyleOptionButton full;
        full.initFrom(&button);
        full.features = QStyleOptionButton::None;
        full.text = text;
        full.icon = button.icon();
        full.iconSize = button.iconSize();
        const QRect contents = button.style()->subElementRect(QStyle::SE_PushButtonContents, &full, &button);
        QCOMPARE(label.rect, contents.adjusted(2, 0, -2, 0));
        QCOMPARE(button.text(), text);
    }

    // The body is painted without a label, from the widget's basic state only: neither the
    // checked nor the pressed state reaches it.
    void bodyWithoutLabel_data()
    {
        QTest::addColumn<bool>("checked");
        QTest::addColumn<bool>("pressed");
        QTest::newRow("released") << false << false;
        QTest::newRow("checked") << true << false;
        QTest::newRow("pressed") << false << true;
    }

    void bodyWithoutLabel()
    {
        QFETCH(bool, checked);
        QFETCH(bool, pressed);
        ElidedButton button(QIcon(QStringLiteral(":/ic_cross_red_24px.svg")), longText);
        button.setStyle(&m_style);
        button.setCheckable(checked);
        button.setChecked(checked);
        button.resize(100, 30);
        button.show();
        QVERIFY(QTest::qWaitForWindowExposed(&button));
        if (pressed)
            QTest::mousePress(&button, Qt::LeftButton);
        QCOMPARE(button.isDown(), pressed);
        m_style.clear();
        button.grab();

        QCOMPARE(m_style.bodies.size(), 1);
        const QStyleOptionButton body = m_style.bodies.first();
        QVERIFY(body.text.isNull());
        QVERIFY(body.icon.isNull());
        QCOMPARE(body.rect, button.rect());
        QVERIFY(body.state & QStyle::State_Enabled);
        QVERIFY(!(body.state & QStyle::State_On));
        QVERIFY(!(body.state & QStyle::State_Sunken));
        // The label itself knows the full state.
        const QStyleOptionButton label = m_style.labels.last();
        QCOMPARE(bool(label.state & QStyle::State_On), checked);
        QCOMPARE(bool(label.state & QStyle::State_Sunken), pressed);
        if (pressed)
            QTest::mouseRelease(&button, Qt::LeftButton);
    }

    // Repeated paints at the same width with the same text reuse the caption: each paint asks
    // for the contents rectangle once less than a paint that recomputes.
    void noRecomputationWithoutChange()
    {
        ElidedButton button(longText);
        button.setStyle(&m_style);
        button.resize(90, 30);
        m_style.clear();
        button.grab();
        const int recomputingPaint = m_style.contentsQueries;
        m_style.clear();
        button.grab();
        const int plainPaint = m_style.contentsQueries;
        QCOMPARE(recomputingPaint, plainPaint + 1);
        m_style.clear();
        button.grab();
        button.grab();
        QCOMPARE(m_style.contentsQueries, 2 * plainPaint);

        // A font change alone goes unnoticed: the caption stays what it was.
        const QString before = m_style.labels.last().text;
        button.setFont(ko::qtToolkit::test::fixedFont(20));
        QVERIFY(expectedCaption(button, longText) != before);
        m_style.clear();
        button.grab();
        QCOMPARE(m_style.contentsQueries, plainPaint);
        QCOMPARE(m_style.labels.last().text, before);
    }

    void recomputesOnWidthOrTextChange()
    {
        ElidedButton button(longText);
        button.setStyle(&m_style);
        button.resize(90, 30);
        button.grab();
        m_style.clear();
        button.grab();
        const int plainPaint = m_style.contentsQueries;

        button.resize(140, 30);
        m_style.clear();
        button.grab();
        QCOMPARE(m_style.contentsQueries, plainPaint + 1);
        QCOMPARE(m_style.labels.last().text, expectedCaption(button, longText));

        const QString other = QStringLiteral("Store scene as default");
        button.setText(other);
        m_style.clear();
        button.grab();
        QCOMPARE(m_style.contentsQueries, plainPaint + 1);
        QCOMPARE(m_style.labels.last().text, expectedCaption(button, other));
        QVERIFY(m_style.labels.last().text != other);
        QCOMPARE(button.text(), other);
    }

    // Showing the button computes its caption before the first paint.
    void showComputesTheCaption()
    {
        ElidedButton button(longText);
        button.setStyle(&m_style);
        button.resize(90, 30);
        m_style.clear();
        button.show();
        QCOMPARE(m_style.contentsQueries, 1);
        QVERIFY(m_style.labels.isEmpty());
        QVERIFY(QTest::qWaitForWindowExposed(&button));
    }

    void fullTextIsTheToolTipWhileCut()
    {
        ko::qtToolkit::test::checkToolTipFollowsElision<ElidedButton>(longText);
    }

    void applicationToolTipIsKept()
    {
        ko::qtToolkit::test::checkApplicationToolTipIsKept<ElidedButton>(longText);
    }

    void pressAndHoldShowsTheFullText()
    {
        ko::qtToolkit::test::checkPressAndHoldShowsToolTip<ElidedButton>(longText);
    }

private:
    RecordingStyle m_style;
};

QTEST_MAIN(tst_ElidedButton)
#include "tst_ElidedButton.moc"
