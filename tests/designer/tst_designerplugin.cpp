#include <kes/qt/gui/widgets/hexspinbox.h>
#include <kes/qt/gui/widgets/hyperlabel.h>
#include <kes/qt/gui/widgets/labeleddoublespinbox.h>
#include <kes/qt/gui/widgets/labeledhexspinbox.h>
#include <kes/qt/gui/widgets/labeledhexspinboximpl.h>

#include "kestest.h"

#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QPluginLoader>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QUiLoader>

#include <iterator>
#include <memory>

// The plugin as built, unless KES_DESIGNER_PLUGIN names another copy (the installed one).
static QString pluginFile()
{
    const QString chosen = qEnvironmentVariable("KES_DESIGNER_PLUGIN");
    return chosen.isEmpty() ? QStringLiteral(KES_DESIGNER_PLUGIN) : chosen;
}

class tst_DesignerPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_loader.setFileName(pluginFile());
        QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
        auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(m_loader.instance());
        QVERIFY(collection);
        for (QDesignerCustomWidgetInterface* widget : collection->customWidgets())
            m_widgets.insert(widget->name(), widget);
    }

    // Every widget in the box: its entry, the form Designer drops and the widget it creates.
    void widgets_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("header");
        const char* const classes[][2] = {
            {"kes::qt::scope::View", "scope/view.h"},
            {"kes::qt::discreteapproximator::View", "discreteapproximator/view.h"},
            {"kes::qt::gui::widgets::ImageView", "gui/widgets/imageview.h"},
            {"kes::qt::colorrangefinder::Dialog", "colorrangefinder/dialog.h"},
            {"kes::qt::laserrangefinder::View", "laserrangefinder/view.h"},
            {"kes::qt::gui::widgets::ScienceSpinBox", "gui/widgets/sciencespinbox.h"},
            {"kes::qt::gui::widgets::HexSpinBox", "gui/widgets/hexspinbox.h"},
            {"kes::qt::gui::widgets::SpinBox", "gui/widgets/spinbox.h"},
            {"kes::qt::gui::widgets::DoubleSpinBox", "gui/widgets/doublespinbox.h"},
            {"kes::qt::gui::widgets::ComboBox", "gui/widgets/combobox.h"},
            {"kes::qt::gui::widgets::LabeledSpinBox", "gui/widgets/labeledspinbox.h"},
            {"kes::qt::gui::widgets::LabeledDoubleSpinBox", "gui/widgets/labeleddoublespinbox.h"},
            {"kes::qt::gui::widgets::LabeledHexSpinBox", "gui/widgets/labeledhexspinbox.h"},
            {"kes::qt::gui::widgets::LabeledLineEdit", "gui/widgets/labeledlineedit.h"},
            {"kes::qt::gui::widgets::LabeledComboBox", "gui/widgets/labeledcombobox.h"},
            {"kes::qt::gui::widgets::Progress", "gui/widgets/progress.h"},
            {"kes::qt::gui::widgets::HyperLabel", "gui/widgets/hyperlabel.h"},
            {"kes::qt::gui::widgets::ScaledLabel", "gui/widgets/scaledlabel.h"},
            {"kes::qt::gui::widgets::CheckBox", "gui/widgets/checkbox.h"},
            {"kes::qt::gui::widgets::LineEditWithHelp", "gui/widgets/lineeditwithhelp.h"},
        };
        for (const auto& row : classes)
            QTest::newRow(row[0]) << QString::fromLatin1(row[0]) << QString::fromLatin1(row[1]);
        QCOMPARE(m_widgets.size(), int(std::size(classes)));
    }

    void widgets()
    {
        QFETCH(QString, className);
        QFETCH(QString, header);
        QDesignerCustomWidgetInterface* entry = m_widgets.value(className);
        QVERIFY2(entry, "not offered");
        QCOMPARE(entry->group(), QStringLiteral("libkes_qt"));
        QVERIFY(!entry->toolTip().isEmpty());
        QVERIFY(entry->whatsThis().size() > entry->toolTip().size());
        QVERIFY(!entry->icon().isNull());
        QCOMPARE(entry->includeFile(), QStringLiteral("<kes/qt/%1>").arg(header));
        QVERIFY(QFileInfo::exists(QStringLiteral(KES_SOURCE_DIR "/src/kes/qt/") + header));
        QVERIFY(!entry->isContainer());

        // Designer drops the class under an object name it accepts, with the dropped properties.
        QDomDocument dom;
        QVERIFY(dom.setContent(entry->domXml()));
        const QDomElement widget = dom.documentElement().firstChildElement(QStringLiteral("widget"));
        QCOMPARE(widget.attribute(QStringLiteral("class")), className);
        QVERIFY(QRegularExpression(QStringLiteral("^[a-z][A-Za-z]*$")).match(widget.attribute(QStringLiteral("name"))).hasMatch());

        QWidget parent;
        QWidget* created = entry->createWidget(&parent);
        QVERIFY(created);
        QCOMPARE(QString::fromLatin1(created->metaObject()->className()), className);
        QCOMPARE(created->parentWidget(), &parent);
    }

    // A form with every widget, through QUiLoader and the plugin, with the properties set there.
    void form()
    {
        QUiLoader loader;
        loader.clearPluginPaths();
        loader.addPluginPath(QFileInfo(pluginFile()).absolutePath());
        QFile file(QStringLiteral(KES_SOURCE_DIR "/tests/designer/allwidgets.ui"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        m_form.reset(loader.load(&file));
        QVERIFY2(m_form, qPrintable(loader.errorString()));

        QSet<QString> classes;
        for (QWidget* child : m_form->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            classes.insert(QString::fromLatin1(child->metaObject()->className()));
        QCOMPARE(classes, QSet<QString>(m_widgets.keyBegin(), m_widgets.keyEnd()));

        // The properties reach the widgets' own setters, not just the property system.
        using namespace kes::qt::gui::widgets;
        QCOMPARE(m_form->findChild<HexSpinBox*>(QStringLiteral("hexSpinBox"))->text(), QStringLiteral("BEEF"));
        auto* labeledHex = m_form->findChild<LabeledHexSpinBox*>(QStringLiteral("labeledHexSpinBox"));
        QCOMPARE(labeledHex->hexSpinBox()->text(), QStringLiteral("AAA"));
        QCOMPARE(labeledHex->label()->text(), QStringLiteral("Register:"));
        auto* labeledDouble = m_form->findChild<LabeledDoubleSpinBox*>(QStringLiteral("labeledDoubleSpinBox"));
        QCOMPARE(labeledDouble->label()->text(), QStringLiteral("Exposure ="));
        QCOMPARE(m_form->findChild<HyperLabel*>(QStringLiteral("hyperLabel"))->text(),
                 QStringLiteral("<a href=\"https://example.com/manual.html\">Manual</a>"));
    }

    void formProperties_data()
    {
        QTest::addColumn<QString>("object");
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QVariant>("expected");
        const auto row = [](const char* object, const char* property, const QVariant& expected) {
            QTest::addRow("%s.%s", object, property) << QString::fromLatin1(object) << QByteArray(property) << expected;
        };
        row("scopeView", "numChannels", 3);
        row("scopeView", "xAxisTitle", QStringLiteral("Time [ms]"));
        row("curveEditor", "xAxisText", QStringLiteral("U [V]"));
        row("curveEditor", "yAxisText", QStringLiteral("Opening [%]"));
        row("curveEditor", "showPointEnabled", true);
        row("imageView", "roiSelectionEnabled", true);
        row("imageView", "overlayDrawingEnabled", true);
        row("colorRangeFinder", "rangeModifiersEnabled", false);
        row("scienceSpinBox", "displayDecimals", 6);
        row("scienceSpinBox", "decadeStepping", true);
        row("hexSpinBox", "textWidth", 4);
        row("hexSpinBox", "upperCase", true);
        row("spinBox", "displayStyleTracking", false);
        row("doubleSpinBox", "displayStyleTracking", false);
        row("comboBox", "displayStyleTracking", false);
        row("labeledSpinBox", "labelText", QStringLiteral("Gain"));
        row("labeledSpinBox", "minimum", -10);
        row("labeledSpinBox", "maximum", 10);
        row("labeledSpinBox", "value", -3);
        row("labeledDoubleSpinBox", "decimals", 3);
        row("labeledDoubleSpinBox", "value", 2.125);
        row("labeledHexSpinBox", "value", 2730);
        row("labeledHexSpinBox", "textWidth", 3);
        row("labeledLineEdit", "labelText", QStringLiteral("Name"));
        row("labeledLineEdit", "text", QStringLiteral("Camera 1"));
        row("labeledComboBox", "labelText", QStringLiteral("Mode"));
        row("progress", "title", QStringLiteral("Calibrating"));
        row("hyperLabel", "text", QStringLiteral("Manual"));
        row("hyperLabel", "link", QStringLiteral("https://example.com/manual.html"));
        row("scaledLabel", "text", QStringLiteral("12.5 V"));
        row("checkBox", "readOnly", true);
    }

    void formProperties()
    {
        QFETCH(QString, object);
        QFETCH(QByteArray, property);
        QFETCH(QVariant, expected);
        QVERIFY2(m_form, "the form did not load");
        QWidget* widget = m_form->findChild<QWidget*>(object);
        QVERIFY(widget);
        // Declared, so that Designer offers it; a dynamic property would hold any value too.
        QVERIFY(widget->metaObject()->indexOfProperty(property) >= 0);
        QCOMPARE(widget->property(property), expected);
    }

private:
    QPluginLoader m_loader;
    QHash<QString, QDesignerCustomWidgetInterface*> m_widgets;
    std::unique_ptr<QWidget> m_form;
};

KES_TEST_MAIN(tst_DesignerPlugin)
#include "tst_designerplugin.moc"
