// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/ComboBox.h>

#include <ko/qtToolkit/common/EventPosition_p.h>
#include <ko/qtToolkit/widget/ItemViewOption_p.h>

#include <QEvent>
#include <QFont>
#include <QLinearGradient>
#include <QListView>
#include <QMouseEvent>
#include <QPainter>
#include <QPersistentModelIndex>
#include <QPixmap>
#include <QScrollBar>
#include <QStandardItemModel>

namespace ko::qtToolkit::widget {

// Swallows the wheel: on a touch panel a wheel turn is an accident, not a choice.
class ComboBoxPrivate : public QObject
{
public:
    explicit ComboBoxPrivate(ComboBox *q)
        : q(q)
    {
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        return watched == q && event->type() == QEvent::Wheel;
    }

    ComboBox *const q;
};

// Shows the current entry in bold, on top of whatever font the item carries.
class ComboBoxModel : public QStandardItemModel
{
public:
    explicit ComboBoxModel(ComboBox *comboBox)
        : QStandardItemModel(comboBox)
        , m_comboBox(comboBox)
    {
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        const QVariant value = QStandardItemModel::data(index, role);
        if (role != Qt::FontRole || index.row() != m_comboBox->currentIndex())
            return value;
        auto font = qvariant_cast<QFont>(value);
        font.setWeight(QFont::Bold);
        return font;
    }

private:
    ComboBox *const m_comboBox;
};

namespace {

constexpr int bandHeight = 20;

// The bundle has no such icons, so both pixmaps are null and only the bands show. Loading
// them anyway lets an application that registers icons of these names get arrows.
QPixmap bandArrow(const QString &fileName)
{
    const QPixmap pixmap(fileName);
    return pixmap.isNull() ? pixmap : pixmap.scaledToHeight(bandHeight, Qt::SmoothTransformation);
}

const QPixmap &upArrow()
{
    static const QPixmap pixmap = bandArrow(QStringLiteral(":/ic_arrow_up_gray_24px.svg"));
    return pixmap;
}

const QPixmap &downArrow()
{
    static const QPixmap pixmap = bandArrow(QStringLiteral(":/ic_arrow_down_gray_24px.svg"));
    return pixmap;
}

void paintBand(QPainter &painter, const QRect &band, QPointF opaqueEdge, QPointF transparentEdge,
               const QColor &color, const QPixmap &arrow)
{
    QColor transparent = color;
    transparent.setAlpha(0);
    QLinearGradient gradient(opaqueEdge, transparentEdge);
    gradient.setColorAt(0.0, color);
    gradient.setColorAt(0.5, color);
    gradient.setColorAt(1.0, transparent);
    painter.fillRect(band, gradient);
    painter.drawPixmap(band.center() - QPoint(arrow.width() / 2, arrow.height() / 2), arrow);
}

} // namespace

// The pop-up list: no scroll bars, fading bands where there is more to scroll, items across
// the full width, the combo box's font.
class ComboBoxListView : public ItemViewOption<QListView>
{
public:
    explicit ComboBoxListView(ComboBox *comboBox)
        : ItemViewOption<QListView>(comboBox)
        , m_comboBox(comboBox)
    {
    }

protected:
    void mouseMoveEvent(QMouseEvent *event) override
    {
        // Repaint as soon as the finger reaches another item, so the highlight keeps up.
        const QModelIndex index = indexAt(common::localPosition(*event).toPoint());
        if (index != m_hoveredIndex) {
            m_hoveredIndex = index;
            viewport()->update();
        }
        QListView::mouseMoveEvent(event);
    }

    void paintEvent(QPaintEvent *event) override
    {
        QListView::paintEvent(event);
        const QScrollBar *scrollBar = verticalScrollBar();
        if (scrollBar->minimum() == scrollBar->maximum())
            return;

        QPainter painter(viewport());
        painter.setPen(Qt::NoPen);
        const QColor color = palette().color(QPalette::Window);
        const int width = viewport()->width();
        const int height = viewport()->height();
        if (scrollBar->value() > scrollBar->minimum())
            paintBand(painter, QRect(0, 0, width, bandHeight), QPointF(0, 0), QPointF(0, bandHeight - 1), color,
                      upArrow());
        if (scrollBar->value() < scrollBar->maximum())
            paintBand(painter, QRect(0, height - bandHeight, width, bandHeight), QPointF(0, height - 1),
                      QPointF(0, height - bandHeight), color, downArrow());
    }

    void resizeEvent(QResizeEvent *event) override
    {
        resizeContents(viewport()->width(), contentsSize().height());
        QListView::resizeEvent(event);
    }

    void adjustItemOption(QStyleOptionViewItem &option) const override
    {
        option.showDecorationSelected = true;
        option.font = m_comboBox->font();
    }

private:
    ComboBox *const m_comboBox;
    QPersistentModelIndex m_hoveredIndex;
};

ComboBox::ComboBox(QWidget *parent)
    : QComboBox(parent)
    , d(std::make_unique<ComboBoxPrivate>(this))
{
    installEventFilter(d.get());
    setFocusPolicy(Qt::NoFocus);
    setModel(new ComboBoxModel(this));

    auto *view = new ComboBoxListView(this);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setFocusPolicy(Qt::NoFocus);
    setView(view);
}

ComboBox::~ComboBox() = default;

} // namespace ko::qtToolkit::widget
