#ifndef KES_QT_GUI_WIDGETS_WEBDIALOG_H
#define KES_QT_GUI_WIDGETS_WEBDIALOG_H

#include <kes/qt/kes_qt_export.h>

#include <QDialog>
#include <QString>

#include <memory>

class QUrl;
class QWebView;

namespace kes::qt::gui::widgets {

class WebDialogPrivate;

/// A dialog filled by a web view, for help pages and the like. Its title is the page's title, or
/// "Web page" while the page has none.
class KES_QT_EXPORT WebDialog : public QDialog
{
    Q_OBJECT

public:
    /// An empty dialog titled "Web page".
    explicit WebDialog(QWidget* parent = nullptr);
    ~WebDialog() override;

    /// Loads \a url into the view; the title follows the page.
    void load(const QUrl& url);
    /// The view, for settings and navigation.
    QWebView* webView() const;

public Q_SLOTS:
    /// Titles the dialog in the current language while the page has no title.
    void translate();

private Q_SLOTS:
    void on_webView_titleChanged(const QString& title);

private:
    std::unique_ptr<WebDialogPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
