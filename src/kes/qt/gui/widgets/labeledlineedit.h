#ifndef KES_QT_GUI_WIDGETS_LABELEDLINEEDIT_H
#define KES_QT_GUI_WIDGETS_LABELEDLINEEDIT_H

#include <kes/qt/gui/widgets/abstractlabeledwidget.h>
#include <kes/qt/kes_qt_export.h>

#include <memory>

class QLineEdit;

namespace kes::qt::gui::widgets {

struct LabeledLineEditPrivate;

/// A label in front of the line edit, whose signals it re-emits as its own.
class KES_QT_EXPORT LabeledLineEdit : public AbstractLabeledWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    explicit LabeledLineEdit(QWidget* parent = nullptr);
    explicit LabeledLineEdit(const QString& labelText, QWidget* parent = nullptr);
    ~LabeledLineEdit() override;

    QWidget* widget() const override;
    QLineEdit* lineEdit() const;

    /// The line edit's text, so that forms can set it.
    QString text() const;

public Q_SLOTS:
    void setText(const QString& text);

Q_SIGNALS:
    void cursorPositionChanged(int oldPos, int newPos);
    void editingFinished();
    void returnPressed();
    void selectionChanged();
    void textChanged(const QString& text);
    void textEdited(const QString& text);

private:
    void init();

    std::unique_ptr<LabeledLineEditPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
