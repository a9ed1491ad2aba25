#ifndef KES_DESIGNER_WIDGETINTERFACE_H
#define KES_DESIGNER_WIDGETINTERFACE_H

#include <QObject>
#include <QString>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <functional>

namespace kes::designer {

/// What Qt Designer needs to know of one widget of the library: its class and header, how it
/// appears in the widget box and the form it is dropped as.
struct WidgetDescription
{
    /// The fully qualified class name, as .ui files and uic name it.
    QString className;
    /// The header as applications include it, in angle brackets.
    QString includeFile;
    /// The class name without namespaces; in lower case it names the icon
    /// (":/kes_designer/icons/<name>.png"), with a lower-case initial the dropped widget.
    QString name;
    QString toolTip;
    QString whatsThis;
    /// Properties for the dropped widget, as <property> elements of a .ui file.
    QString defaultProperties;
    std::function<QWidget*(QWidget* parent)> create;
};

/// One widget of the library in Qt Designer's widget box.
class WidgetInterface : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    WidgetInterface(WidgetDescription description, QObject* parent);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget* createWidget(QWidget* parent) override;
    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface* core) override;
    QString domXml() const override;

private:
    WidgetDescription m_description;
    bool m_initialized = false;
};

} // namespace kes::designer

#endif
