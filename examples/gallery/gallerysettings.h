#ifndef KES_GALLERY_GALLERYSETTINGS_H
#define KES_GALLERY_GALLERYSETTINGS_H

#include <QList>
#include <QObject>
#include <QPair>
#include <QString>
#include <QStringList>

namespace kes::gallery {

/// The gallery's own settings that pages follow while they run, kept in the application's
/// settings store and changed from the options dialog.
///
/// A live page declares its frame rate once, in its constructor, and applies it again on
/// frameRateChanged(); the options dialog offers every declared rate.
class GallerySettings : public QObject
{
    Q_OBJECT

public:
    static constexpr int minimumFrameRate = 1;
    static constexpr int maximumFrameRate = 60;

    static GallerySettings& instance();

    /// Offers the frame rate of the page \a pageId, \a defaultRate until the user changes it.
    void declareFrameRate(const QString& pageId, int defaultRate);
    /// The ids of the pages that declared a frame rate, in the order they did.
    QStringList livePages() const;
    /// The stored rate of the page, else its default, within the admissible range.
    int frameRate(const QString& pageId) const;
    void setFrameRate(const QString& pageId, int rate);

Q_SIGNALS:
    void frameRateChanged(const QString& pageId, int rate);

private:
    GallerySettings() = default;

    QList<QPair<QString, int>> m_defaults;
};

} // namespace kes::gallery

#endif
