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
    explicit WebDialog(QWidget* parent = nullptr);
    ~WebDialog() override;

    void load(const QUrl& url);
    QWebView* webView() const;

public Q_SLOTS:
    void translate();

private Q_SLOTS:
    void on_webView_titleChanged(const QString& title);

private:
    std::unique_ptr<WebDialogPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
