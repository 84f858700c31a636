// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include "WidgetCollection.h"

#include "WidgetTable.h"

#include <QIcon>
#include <QWidget>

namespace ko::qtToolkit::designer {

CustomWidget::CustomWidget(const WidgetEntry &entry, QObject *parent)
    : QObject(parent)
    , entry(entry)
{
}

QString CustomWidget::name() const
{
    return QLatin1String(entry.className);
}

QString CustomWidget::group() const
{
    return QStringLiteral("ko qtToolkit");
}

QString CustomWidget::toolTip() const
{
    return QLatin1String(entry.toolTip);
}

QString CustomWidget::whatsThis() const
{
    return QLatin1String(entry.whatsThis);
}

QString CustomWidget::includeFile() const
{
    return QLatin1String(entry.includeFile);
}

QIcon CustomWidget::icon() const
{
    return QIcon(QLatin1String(entry.icon));
}

bool CustomWidget::isContainer() const
{
    return false;
}

// Designer initializes its plugins with its form editor; QUiLoader never does, so what it builds
// at run time carries no placeholders.
QWidget *CustomWidget::createWidget(QWidget *parent)
{
    return entry.create(parent, initialized);
}

bool CustomWidget::isInitialized() const
{
    return initialized;
}

void CustomWidget::initialize(QDesignerFormEditorInterface *)
{
    initialized = true;
}

QString CustomWidget::domXml() const
{
    return QLatin1String("<ui language=\"c++\"><widget class=\"") + QLatin1String(entry.className)
        + QLatin1String("\" name=\"") + QLatin1String(entry.objectName) + QLatin1String("\">")
        + QLatin1String(entry.properties) + QLatin1String("</widget></ui>");
}

WidgetCollection::WidgetCollection(QObject *parent)
    : QObject(parent)
{
    const WidgetEntry *table = widgetTable();
    for (std::size_t row = 0; row < widgetTableSize(); ++row)
        widgets.append(new CustomWidget(table[row], this));
}

QList<QDesignerCustomWidgetInterface *> WidgetCollection::customWidgets() const
{
    return widgets;
}

} // namespace ko::qtToolkit::designer
