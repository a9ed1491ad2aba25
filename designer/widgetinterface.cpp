#include "widgetinterface.h"

#include <QIcon>
#include <QWidget>

#include <utility>

namespace kes::designer {

WidgetInterface::WidgetInterface(WidgetDescription description, QObject* parent)
    : QObject(parent)
    , m_description(std::move(description))
{
}

QString WidgetInterface::name() const
{
    return m_description.className;
}

QString WidgetInterface::group() const
{
    return QStringLiteral("libkes_qt");
}

QString WidgetInterface::toolTip() const
{
    return m_description.toolTip;
}

QString WidgetInterface::whatsThis() const
{
    return m_description.whatsThis;
}

QString WidgetInterface::includeFile() const
{
    return m_description.includeFile;
}

QIcon WidgetInterface::icon() const
{
    return QIcon(QStringLiteral(":/kes_designer/icons/%1.png").arg(m_description.name.toLower()));
}

bool WidgetInterface::isContainer() const
{
    return false;
}

QWidget* WidgetInterface::createWidget(QWidget* parent)
{
    return m_description.create(parent);
}

bool WidgetInterface::isInitialized() const
{
    return m_initialized;
}

void WidgetInterface::initialize(QDesignerFormEditorInterface* core)
{
    Q_UNUSED(core)
    m_initialized = true;
}

QString WidgetInterface::domXml() const
{
    // The object name starts in lower case, as Designer's own widgets do ("scopeView").
    QString objectName = m_description.name;
    objectName[0] = objectName.at(0).toLower();
    return QStringLiteral("<ui language=\"c++\">\n <widget class=\"%1\" name=\"%2\">\n%3 </widget>\n</ui>\n")
        .arg(m_description.className, objectName, m_description.defaultProperties);
}

} // namespace kes::designer
