#ifndef KES_QT_GUI_WIDGETS_HYPERLABEL_H
#define KES_QT_GUI_WIDGETS_HYPERLABEL_H

#include <kes/qt/kes_qt_export.h>

#include <QLabel>
#include <QString>

#include <memory>

namespace kes::qt::gui::widgets {

class HyperLabelPrivate;

/// A label that opens its link in the web browser on a left click. With a link, the text is
/// shown as an anchor; without one, as plain text that ignores clicks.
class KES_QT_EXPORT HyperLabel : public QLabel
{
    Q_OBJECT
    /// The text as set, without the anchor; see plainText().
    Q_PROPERTY(QString text READ plainText WRITE setText)
    /// The URL opened on a click; empty for none.
    Q_PROPERTY(QString link READ link WRITE setLink)

public:
    /// An empty label without a link, with a pointing-hand cursor.
    explicit HyperLabel(QWidget* parent = nullptr);
    ~HyperLabel() override;

    /// Shows the text as a link to \a link; an empty link shows it as plain text.
    void setLink(const QString& link);
    /// The URL opened on a click; empty for none.
    QString link() const;
    /// The text as given to setText(), without the anchor that text() shows around it.
    QString plainText() const;

    /// The browser command of every label, looked up on the PATH and given the URL as its one
    /// argument; empty at first, which leaves the URL to the desktop's default handler.
    static void setWebBrowser(const QString& command);
    /// The browser command set with setWebBrowser().
    static QString webBrowser();
    /// Opens \a url without waiting for the browser, which outlives the application if need be.
    /// "mailto:" URLs, and any URL when the browser command cannot be started, go to the
    /// desktop's default handler. \a parent is not used.
    static void openWebPage(const QString& url, QWidget* parent);

public Q_SLOTS:
    /// The text shown, as the anchor's text while there is a link. A slot, so that connections
    /// made by name reach it rather than the label's own.
    void setText(const QString& text);

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    std::unique_ptr<HyperLabelPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
