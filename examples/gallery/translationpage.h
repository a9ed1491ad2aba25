#ifndef KES_GALLERY_TRANSLATIONPAGE_H
#define KES_GALLERY_TRANSLATIONPAGE_H

#include "page.h"

#include <kes/qt/translation/container.h>

class QLabel;
class QTableWidget;
class QTableWidgetItem;

namespace kes::gallery {

/// Run-time language switching: the current language, and application texts with arguments
/// translated through an XML translation file, in a table whose source texts can be edited.
class TranslationPage : public Page
{
    Q_OBJECT

public:
    explicit TranslationPage(QWidget* parent = nullptr);
    ~TranslationPage() override;

    QString id() const override;
    QString title() const override;
    void retranslate() override;

    /// The translation file of the page, in the gallery's resources.
    static QString textsFileName();
    /// The source texts of the table's rows, as the application would pass them to
    /// Container::tr(), arguments filled in.
    static QStringList sampleSources();

private Q_SLOTS:
    /// Looks every row up again in the current language.
    void updateTranslations();

private:
    void loadTexts();
    void updateRow(int row);
    void onItemChanged(QTableWidgetItem* item);

    kes::qt::translation::ContainerPtr m_texts;
    bool m_textsLoaded = false;
    QString m_loadError;

    QLabel* m_introHeading = nullptr;
    QLabel* m_qtTexts = nullptr;
    QLabel* m_containerTexts = nullptr;
    QLabel* m_languageLabel = nullptr;
    QLabel* m_language = nullptr;
    QLabel* m_languageHint = nullptr;
    QLabel* m_tableHeading = nullptr;
    QLabel* m_status = nullptr;
    QTableWidget* m_table = nullptr;
    QLabel* m_tableNote = nullptr;
};

} // namespace kes::gallery

#endif
