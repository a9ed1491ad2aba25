#ifndef KES_QT_EXPORTDIALOGS_IMGEXPORTDIALOG_H
#define KES_QT_EXPORTDIALOGS_IMGEXPORTDIALOG_H

#include <kes/qt/kes_qt_export.h>

#include <QDialog>

#include <memory>

class QImageWriter;

namespace kes::qt::exportdialogs {

class ImgExportDialogPrivate;

/// Asks, before an image is written, for the options its format supports: a custom quality
/// (0 to 100) and lossless compression. The choices and the dialog's position are remembered in
/// the application's settings, group "Export/ProgramToImage"; a control the format does not
/// support is disabled and its stored value left alone.
///
/// Usually through setupWriter():
/// \code
/// QImageWriter writer(fileName);
/// if (ImgExportDialog::setupWriter(&writer, this) && !writer.write(image))
///     showError(writer.errorString());
/// \endcode
class KES_QT_EXPORT ImgExportDialog : public QDialog
{
    Q_OBJECT

public:
    /// Offers a custom quality if \a qualitySupported and compression if \a compressionSupported, with the choices stored last time.
    explicit ImgExportDialog(bool qualitySupported, bool compressionSupported, QWidget* parent = nullptr,
                             Qt::WindowFlags flags = {});
    ~ImgExportDialog() override;

    /// The chosen quality, or -1 (the format's default) when no custom quality is chosen.
    int quality() const;
    /// 1 with compression chosen, else 0.
    int compression() const;

    /// Asks for the options \a writer's format supports and sets them on it. A format with
    /// neither quality nor compression is not asked about and gives true at once; otherwise the
    /// dialog runs modally and Cancel gives false. No writer gives false.
    static bool setupWriter(QImageWriter* writer, QWidget* parent = nullptr, Qt::WindowFlags flags = {});

public Q_SLOTS:
    /// Labels the controls in the current language.
    void translate();
    /// Stores the settings of the enabled controls and the position, then accepts.
    void on_buttons_accepted();

private:
    std::unique_ptr<ImgExportDialogPrivate> const d;
};

} // namespace kes::qt::exportdialogs

#endif
