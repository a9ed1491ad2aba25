// The translation loader on a file's bytes, then the same bytes section by section through
// load(element): neither may crash, hang or read outside the input, and every stored item must
// answer lookups.
#include "fuzzapp.h"

#include <kes/qt/translation/loader.h>

#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>

using kes::qt::translation::ContainerPtr;
using kes::qt::translation::Loader;

namespace {

void lookUpEverything(const ContainerPtr& container)
{
    for (const QString& key : container->keys()) {
        kes::fuzz::require(container->item(key).key() == key, "a listed key has its item");
        container->tr(key, true);
        container->tr(key, QStringLiteral("de"), false);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    kes::fuzz::ensureApplication();
    static QTemporaryDir dir(kes::fuzz::temporaryFolder() + QStringLiteral("/kes_fuzz_XXXXXX"));
    const QString path = dir.filePath(QStringLiteral("translations.xml"));
    const QByteArray content = kes::fuzz::bytes(data, size);
    {
        QFile file(path);
        kes::fuzz::require(file.open(QIODevice::WriteOnly | QIODevice::Truncate), "temporary file");
        file.write(content);
    }

    Loader fromFile;
    fromFile.load(path);
    lookUpEverything(fromFile.container());

    Loader strict;
    strict.setAbortOnError(true);
    strict.load(path);
    lookUpEverything(strict.container());

    QDomDocument document;
    if (document.setContent(content)) {
        Loader bySection;
        for (QDomElement section = document.documentElement().firstChildElement();
             !section.isNull(); section = section.nextSiblingElement()) {
            bySection.load(section);
        }
        lookUpEverything(bySection.container());
    }
    return 0;
}
