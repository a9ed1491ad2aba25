#include <kes/qt/colorrangefinder/dialog.h>

#include <kes/cv/convert.h>
#include <kes/cv/minmax.h>
#include <kes/qt/colorrangefinder/colorbox.h>
#include <kes/qt/colorrangefinder/spinboxgroup.h>
#include <kes/qt/gui/widgets/imageview.h>
#include <kes/qt/translation/manager.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QHBoxLayout>
#include <QIcon>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace kes::qt::colorrangefinder {

using kes::core::image::Image;
using kes::qt::gui::widgets::ImageView;

class DialogPrivate
{
public:
    ImageView* imageView = nullptr;
    SpinBoxGroup* spinBoxGroup = nullptr;
    ColorBox* colorBox = nullptr;
    QCheckBox* showResult = nullptr;
    QCheckBox* freezeImage = nullptr;
    Image image;
    Image resultImage;
    QPushButton* copy = nullptr;
    QPushButton* paste = nullptr;
};

namespace {

QPushButton* iconButton(const QString& name, const QString& icon, QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(name);
    button->setFixedSize(24, 24);
    button->setIcon(QIcon(icon));
    return button;
}

// An 8-bit channel value on a scale of \a full: minima rounded down, maxima up, so that the
// measured colours lie inside the range. Single precision, as the ranges were always computed.
int scaledDown(double value, float full)
{
    return std::max(int(std::floor(float(value) * full / 255.0f)), 0);
}

int scaledUp(double value, float full)
{
    return std::min(int(std::ceil(float(value) * full / 255.0f)), int(full));
}

} // namespace

Dialog::Dialog(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<DialogPrivate>())
{
    d->imageView = new ImageView(this);
    d->imageView->setObjectName(QStringLiteral("imageView"));
    d->imageView->setRoiSelectionEnabled(true);
    d->spinBoxGroup = new SpinBoxGroup(Qt::Horizontal, this);
    d->spinBoxGroup->setObjectName(QStringLiteral("spinBoxGroup"));
    d->colorBox = new ColorBox(this);
    d->colorBox->setObjectName(QStringLiteral("colorBox"));
    d->showResult = new QCheckBox(this);
    d->showResult->setObjectName(QStringLiteral("showResult"));
    d->freezeImage = new QCheckBox(this);
    d->freezeImage->setObjectName(QStringLiteral("freezeImage"));
    d->copy = iconButton(QStringLiteral("copy"), QStringLiteral(":/kes_qt/icons/copy16.png"), this);
    d->paste = iconButton(QStringLiteral("paste"), QStringLiteral(":/kes_qt/icons/paste16.png"), this);

    auto* checks = new QHBoxLayout;
    checks->addWidget(d->showResult);
    checks->addWidget(d->freezeImage);
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(d->copy);
    buttons->addWidget(d->paste);
    auto* controls = new QHBoxLayout;
    controls->addWidget(d->spinBoxGroup);
    controls->addStretch(1);
    controls->addLayout(buttons);
    auto* column = new QVBoxLayout;
    column->addLayout(checks);
    column->addWidget(d->imageView);
    column->addLayout(controls);
    auto* outer = new QHBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addLayout(column);
    outer->addWidget(d->colorBox);

    connect(d->imageView, SIGNAL(roiChanged( const kes::core::Roi& )), this,
            SLOT(on_imageView_roiChanged( const kes::core::Roi& )));
    connect(d->spinBoxGroup, SIGNAL(valuesChanged()), this, SLOT(on_spinBoxGroup_valuesChanged()));
    connect(d->showResult, SIGNAL(stateChanged(int)), this, SLOT(on_showResult_stateChanged(int)));
    connect(d->freezeImage, SIGNAL(stateChanged(int)), this, SLOT(on_freezeImage_stateChanged(int)));
    connect(d->copy, SIGNAL(clicked()), this, SLOT(on_copy_clicked()));
    connect(d->paste, SIGNAL(clicked()), this, SLOT(on_paste_clicked()));
    updateColors();
    connect(&kes::qt::translation::Manager::singleton(), SIGNAL(languageChanged()), this, SLOT(translate()));
    translate();
}

Dialog::~Dialog() = default;

void Dialog::setImage(const Image& image)
{
    d->image = image;
    if (!d->showResult->isChecked())
        d->imageView->setImage(image, true);
}

void Dialog::setResultImage(const Image& image)
{
    d->resultImage = image;
    if (d->showResult->isChecked())
        d->imageView->setImage(image, true);
}

void Dialog::setRanges(int hueMin, int hueMax, int satMin, int satMax, int valMin, int valMax)
{
    d->spinBoxGroup->setRanges(hueMin, hueMax, satMin, satMax, valMin, valMax);
}

void Dialog::setRanges(const kes::core::IntVector& ranges)
{
    if (ranges.size() == 6)
        setRanges(ranges[0], ranges[1], ranges[2], ranges[3], ranges[4], ranges[5]);
}

kes::core::IntVector Dialog::ranges() const
{
    return d->spinBoxGroup->ranges();
}

void Dialog::setRangeModifiersEnabled(bool enable)
{
    d->spinBoxGroup->setEnabled(enable);
    d->imageView->setRoiSelectionEnabled(enable);
    d->paste->setEnabled(enable);
}

bool Dialog::rangeModifiersEnabled() const
{
    return d->paste->isEnabledTo(this);
}

void Dialog::updateColors()
{
    d->colorBox->updateColors(d->spinBoxGroup->ranges());
}

void Dialog::translate()
{
    d->showResult->setText(tr("Show result"));
    d->freezeImage->setText(tr("Freeze image"));
    d->copy->setToolTip(tr("Copy values to clipboard"));
    d->paste->setToolTip(tr("Paste values from clipboard"));
}

void Dialog::on_imageView_roiChanged(const kes::core::Roi& roi)
{
    Image hsv = kes::cv::convert(d->imageView->image(), kes::core::image::Hsv);
    kes::core::image::setRoi(hsv, roi);
    std::vector<double> min;
    std::vector<double> max;
    // A click without a drag, or a region beside the picture, measures nothing.
    if (kes::cv::minmax(hsv, min, max) && min.size() == 3 && max.size() == 3) {
        setRanges(scaledDown(min[0], 360.0f), scaledUp(max[0], 360.0f), scaledDown(min[1], 100.0f),
                  scaledUp(max[1], 100.0f), scaledDown(min[2], 100.0f), scaledUp(max[2], 100.0f));
    }
    d->imageView->clearRoi();
}

void Dialog::on_showResult_stateChanged(int state)
{
    const bool result = state == Qt::Checked;
    d->imageView->setRoiSelectionEnabled(!result);
    d->imageView->setImage(result ? d->resultImage : d->image, true);
}

void Dialog::on_freezeImage_stateChanged(int state)
{
    d->imageView->setFreezeImage(state == Qt::Checked);
}

void Dialog::on_spinBoxGroup_valuesChanged()
{
    updateColors();
    Q_EMIT valuesChanged();
}

void Dialog::on_copy_clicked()
{
    QApplication::clipboard()->setText(QString::fromStdString(kes::core::toString(ranges())));
}

void Dialog::on_paste_clicked()
{
    const QByteArray text = QApplication::clipboard()->text().toUtf8();
    setRanges(kes::core::fromString<int>(std::string(text.constData(), std::size_t(text.size()))));
}

} // namespace kes::qt::colorrangefinder
