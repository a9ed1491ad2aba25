#include <kes/qt/gui/widgets/combobox.h>

#include <QKeyEvent>
#include <QLineEdit>

namespace kes::qt::gui::widgets {

struct ComboBoxPrivate
{
    QString committed;
    bool settingEditText = false;
};

ComboBox::ComboBox()
    : QComboBox()
    , Widget(this)
    , d(std::make_unique<ComboBoxPrivate>())
{
    init();
}

ComboBox::ComboBox(void* userData)
    : QComboBox()
    , Widget(this)
    , UserData<void*>(userData)
    , d(std::make_unique<ComboBoxPrivate>())
{
    init();
}

ComboBox::~ComboBox() = default;

void ComboBox::init()
{
    connect(this, SIGNAL(activated(int)), this, SLOT(on_activated(int)));
    connect(this, SIGNAL(activated(const QString&)), this, SLOT(on_activated(const QString&)));
    connect(this, SIGNAL(currentIndexChanged(int)), this, SLOT(on_currentIndexChanged(int)));
    connect(this, SIGNAL(currentIndexChanged(const QString&)), this,
            SLOT(on_currentIndexChanged(const QString&)));
    connect(this, SIGNAL(editTextChanged(const QString&)), this,
            SLOT(on_editTextChanged(const QString&)));
    connect(this, SIGNAL(highlighted(int)), this, SLOT(on_highlighted(int)));
    connect(this, SIGNAL(highlighted(const QString&)), this, SLOT(on_highlighted(const QString&)));
    setDisplayStyle(Normal);
}

QString ComboBox::committedText() const
{
    return d->committed;
}

void ComboBox::setEditText(const QString& text)
{
    d->settingEditText = true;
    d->committed = text;
    QComboBox::setEditText(text);
    d->settingEditText = false;
}

void ComboBox::on_activated(int index)
{
    Q_EMIT activated(index, userData());
}

void ComboBox::on_activated(const QString& text)
{
    if (displayStyleTracking())
        setDisplayStyle(Normal);
    d->committed = text;
    Q_EMIT activated(text, userData());
}

void ComboBox::on_currentIndexChanged(int index)
{
    Q_EMIT currentIndexChanged(index, userData());
}

void ComboBox::on_currentIndexChanged(const QString& text)
{
    Q_EMIT currentIndexChanged(text, userData());
}

void ComboBox::on_highlighted(int index)
{
    Q_EMIT highlighted(index, userData());
}

void ComboBox::on_highlighted(const QString& text)
{
    Q_EMIT highlighted(text, userData());
}

void ComboBox::on_editTextChanged(const QString& text)
{
    // Text the program sets (setEditText(), or a new current item) is not the user's typing.
    if (displayStyleTracking()) {
        const bool typed = !d->settingEditText && lineEdit() && lineEdit()->isModified();
        setDisplayStyle(typed ? Editing : Normal);
    }
    Q_EMIT editTextChanged(text, userData());
}

void ComboBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        setEditText(d->committed);
        if (QLineEdit* edit = lineEdit())
            edit->selectAll();
        if (displayStyleTracking())
            setDisplayStyle(Normal);
    }
    QComboBox::keyPressEvent(event);
}

} // namespace kes::qt::gui::widgets
