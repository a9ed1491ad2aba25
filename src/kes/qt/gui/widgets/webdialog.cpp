#include <kes/qt/gui/widgets/webdialog.h>

#include <kes/qt/translation/manager.h>

#include <QUrl>
#include <QVBoxLayout>
#include <QWebView>

namespace kes::qt::gui::widgets {

class WebDialogPrivate
{
public:
    QWebView* webView = nullptr;
};

WebDialog::WebDialog(QWidget* parent)
    : QDialog(parent)
    , d(std::make_unique<WebDialogPrivate>())
{
    d->webView = new QWebView(this);
    d->webView->setObjectName(QStringLiteral("webView"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->webView);
    connect(d->webView, SIGNAL(titleChanged(const QString&)), this, SLOT(on_webView_titleChanged(const QString&)));
    connect(&kes::qt::translation::Manager::singleton(), SIGNAL(languageChanged()), this, SLOT(translate()));
    translate();
}

WebDialog::~WebDialog() = default;

void WebDialog::load(const QUrl& url)
{
    d->webView->load(url);
}

QWebView* WebDialog::webView() const
{
    return d->webView;
}

void WebDialog::translate()
{
    on_webView_titleChanged(d->webView->title());
}

void WebDialog::on_webView_titleChanged(const QString& title)
{
    setWindowTitle(title.isEmpty() ? tr("Web page") : title);
}

} // namespace kes::qt::gui::widgets
