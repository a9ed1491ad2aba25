#include "gallerysettings.h"

#include <QSettings>

#include <algorithm>

namespace kes::gallery {

namespace {

QString frameRateKey(const QString& pageId)
{
    return QStringLiteral("gallery/frameRate/") + pageId;
}

} // namespace

GallerySettings& GallerySettings::instance()
{
    static GallerySettings settings;
    return settings;
}

void GallerySettings::declareFrameRate(const QString& pageId, int defaultRate)
{
    for (const auto& entry : qAsConst(m_defaults)) {
        if (entry.first == pageId) {
            return;
        }
    }
    m_defaults.append({pageId, defaultRate});
}

QStringList GallerySettings::livePages() const
{
    QStringList ids;
    for (const auto& entry : m_defaults) {
        ids << entry.first;
    }
    return ids;
}

int GallerySettings::frameRate(const QString& pageId) const
{
    int rate = maximumFrameRate;
    for (const auto& entry : m_defaults) {
        if (entry.first == pageId) {
            rate = entry.second;
        }
    }
    bool ok = false;
    const int stored = QSettings().value(frameRateKey(pageId)).toInt(&ok);
    // A hand-edited settings file must not stop a page's timer or make it spin.
    return std::clamp(ok ? stored : rate, minimumFrameRate, maximumFrameRate);
}

void GallerySettings::setFrameRate(const QString& pageId, int rate)
{
    rate = std::clamp(rate, minimumFrameRate, maximumFrameRate);
    if (rate == frameRate(pageId)) {
        return;
    }
    QSettings().setValue(frameRateKey(pageId), rate);
    Q_EMIT frameRateChanged(pageId, rate);
}

} // namespace kes::gallery
