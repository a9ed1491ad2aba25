#ifndef KES_QT_GUI_WIDGETS_COMBOBOX_H
#define KES_QT_GUI_WIDGETS_COMBOBOX_H

#include <kes/qt/gui/widgets/userdata.h>
#include <kes/qt/gui/widgets/widget.h>
#include <kes/qt/kes_qt_export.h>

#include <QComboBox>

#include <memory>

namespace kes::qt::gui::widgets {

struct ComboBoxPrivate;

/// A combo box for parameter editors: text typed into an editable box shows the Editing colour
/// until an entry is activated (Return or a choice from the list), Escape brings back the last
/// activated or set text, and every signal carries the user data given to the constructor.
///
/// Created without a parent: placing it into a layout gives it one.
class KES_QT_EXPORT ComboBox : public QComboBox, public Widget, public UserData<void*>
{
    Q_OBJECT
    /// Whether typing tints the field; see Widget::displayStyleTracking().
    Q_PROPERTY(bool displayStyleTracking READ displayStyleTracking WRITE setDisplayStyleTracking)

public:
    ComboBox();
    /// A combo box whose signals carry \a userData.
    explicit ComboBox(void* userData);
    ~ComboBox() override;

    // QObject has a userData() of its own.
    using UserData<void*>::userData;

    /// The text of the last activation or setEditText().
    QString committedText() const;

public Q_SLOTS:
    /// Sets the text as committed; it is not marked as being edited.
    void setEditText(const QString& text);

    /// Re-emits the activation with the user data.
    void on_activated(int index);
    /// Commits \a text, ends the tint and re-emits the activation with the user data.
    void on_activated(const QString& text);
    /// Re-emits the change with the user data.
    void on_currentIndexChanged(int index);
    /// Re-emits the change with the user data.
    void on_currentIndexChanged(const QString& text);
    /// Re-emits the highlight with the user data.
    void on_highlighted(int index);
    /// Re-emits the highlight with the user data.
    void on_highlighted(const QString& text);
    /// Tints the field while the text is the user's typing, and re-emits the change with the user data.
    void on_editTextChanged(const QString& text);

Q_SIGNALS:
    /// The user chose the entry at \a index.
    void activated(int index, void* userData);
    /// The user chose or entered \a text, which is now committed.
    void activated(const QString& text, void* userData);
    /// The current entry changed, by the user or the program.
    void currentIndexChanged(int index, void* userData);
    /// The current entry changed to \a text.
    void currentIndexChanged(const QString& text, void* userData);
    /// The text of the editable field changed.
    void editTextChanged(const QString& text, void* userData);
    /// The user highlighted the entry at \a index in the list.
    void highlighted(int index, void* userData);
    /// The user highlighted \a text in the list.
    void highlighted(const QString& text, void* userData);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void init();

    std::unique_ptr<ComboBoxPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
