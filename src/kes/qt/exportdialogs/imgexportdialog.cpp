#include <kes/qt/exportdialogs/imgexportdialog.h>

#include <kes/qt/translation/manager.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QImageIOHandler>
#include <QImageWriter>
#include <QSettings>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

namespace kes::qt::exportdialogs {

namespace {

QString group()
{
    return QStringLiteral("Export/ProgramToImage");
}

} // namespace

class ImgExportDialogPrivate
{
public:
    QDialogButtonBox* buttons = nullptr;
    QCheckBox* customQuality = nullptr;
    QSlider* qualitySlider = nullptr;
    QSpinBox* qualitySpinBox = nullptr;
    QCheckBox* compression = nullptr;
};

ImgExportDialog::ImgExportDialog(bool qualitySupported, bool compressionSupported, QWidget* parent,
                                 Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , d(std::make_unique<ImgExportDialogPrivate>())
{
    d->buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, Qt::Horizontal, this);
    d->buttons->setObjectName(QStringLiteral("buttons"));
    d->customQuality = new QCheckBox(this);
    d->customQuality->setObjectName(QStringLiteral("customQuality"));
    d->qualitySlider = new QSlider(Qt::Horizontal, this);
    d->qualitySlider->setObjectName(QStringLiteral("qualitySlider"));
    d->qualitySpinBox = new QSpinBox(this);
    d->qualitySpinBox->setObjectName(QStringLiteral("qualitySpinBox"));
    d->compression = new QCheckBox(this);
    d->compression->setObjectName(QStringLiteral("compression"));
    d->qualitySlider->setRange(0, 100);
    d->qualitySpinBox->setRange(0, 100);

    auto* qualityRow = new QHBoxLayout;
    qualityRow->addWidget(d->customQuality);
    qualityRow->addWidget(d->qualitySlider, 1);
    qualityRow->addWidget(d->qualitySpinBox);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(qualityRow);
    layout->addWidget(d->compression);
    layout->addWidget(d->buttons);

    connect(d->buttons, SIGNAL(accepted()), this, SLOT(on_buttons_accepted()));
    connect(d->buttons, SIGNAL(rejected()), this, SLOT(reject()));
    connect(d->qualitySlider, SIGNAL(sliderMoved( int )), d->qualitySpinBox, SLOT(setValue( int )));
    connect(d->qualitySpinBox, SIGNAL(valueChanged( int )), d->qualitySlider, SLOT(setValue( int )));
    connect(d->customQuality, SIGNAL(toggled( bool )), d->qualitySlider, SLOT(setEnabled( bool )));
    connect(d->customQuality, SIGNAL(toggled( bool )), d->qualitySpinBox, SLOT(setEnabled( bool )));

    QSettings settings;
    settings.beginGroup(group());
    const QString position = QStringLiteral("windowPosition");
    if (settings.contains(position))
        move(settings.value(position).toPoint());
    d->customQuality->setChecked(settings.value(QStringLiteral("customQuality"), false).toBool());
    const int quality = settings.value(QStringLiteral("quality"), 100).toInt();
    d->qualitySlider->setValue(quality);
    d->qualitySpinBox->setValue(quality);
    d->compression->setChecked(settings.value(QStringLiteral("compression"), false).toBool());
    settings.endGroup();

    // What the format cannot do is switched off; its stored choice stays for the next format.
    d->customQuality->setEnabled(qualitySupported);
    if (!qualitySupported) {
        d->customQuality->setChecked(false);
        d->qualitySlider->setValue(0);
        d->qualitySpinBox->setValue(0);
    }
    const bool qualityEditable = qualitySupported && d->customQuality->isChecked();
    d->qualitySlider->setEnabled(qualityEditable);
    d->qualitySpinBox->setEnabled(qualityEditable);
    d->compression->setEnabled(compressionSupported);
    if (!compressionSupported)
        d->compression->setChecked(false);

    connect(&kes::qt::translation::Manager::singleton(), SIGNAL(languageChanged()), this, SLOT(translate()));
    translate();
}

ImgExportDialog::~ImgExportDialog() = default;

int ImgExportDialog::quality() const
{
    return d->customQuality->isChecked() ? d->qualitySlider->value() : -1;
}

int ImgExportDialog::compression() const
{
    return d->compression->isChecked() ? 1 : 0;
}

bool ImgExportDialog::setupWriter(QImageWriter* writer, QWidget* parent, Qt::WindowFlags flags)
{
    if (!writer)
        return false;
    const bool quality = writer->supportsOption(QImageIOHandler::Quality);
    const bool compression = writer->supportsOption(QImageIOHandler::CompressionRatio);
    if (!quality && !compression)
        return true;
    ImgExportDialog dialog(quality, compression, parent, flags);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    if (quality)
        writer->setQuality(dialog.quality());
    if (compression)
        writer->setCompression(dialog.compression());
    return true;
}

void ImgExportDialog::translate()
{
    setWindowTitle(tr("Image export"));
    d->customQuality->setText(tr("Quality:"));
    d->compression->setText(tr("Enable compression"));
    d->customQuality->setWhatsThis(tr("Check this if you want to customize the image's quality"));
    const QString adjust = tr("Adjust quality (if supported by the chosen format)");
    d->qualitySlider->setWhatsThis(adjust);
    d->qualitySpinBox->setWhatsThis(adjust);
    d->compression->setWhatsThis(tr("Enable lossless compression (if supported by the chosen format)"));
}

void ImgExportDialog::on_buttons_accepted()
{
    QSettings settings;
    settings.beginGroup(group());
    settings.setValue(QStringLiteral("windowPosition"), pos());
    if (d->customQuality->isEnabled())
        settings.setValue(QStringLiteral("customQuality"), d->customQuality->isChecked());
    if (d->qualitySlider->isEnabled())
        settings.setValue(QStringLiteral("quality"), d->qualitySlider->value());
    if (d->compression->isEnabled())
        settings.setValue(QStringLiteral("compression"), d->compression->isChecked());
    settings.endGroup();
    accept();
}

} // namespace kes::qt::exportdialogs
