// The language manager's language list reader on a file's bytes. A file it refuses changes
// nothing; one it takes offers a language per "language" element and can select each of them.
#include "fuzzapp.h"

#include <kes/qt/translation/manager.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

using kes::qt::translation::Manager;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    kes::fuzz::ensureApplication();
    static QTemporaryDir dir(kes::fuzz::temporaryFolder() + QStringLiteral("/kes_fuzz_XXXXXX"));
    const QString path = dir.filePath(QStringLiteral("languages.xml"));
    {
        QFile file(path);
        kes::fuzz::require(file.open(QIODevice::WriteOnly | QIODevice::Truncate), "temporary file");
        file.write(kes::fuzz::bytes(data, size));
    }

    Manager manager;
    const bool loaded = manager.load(QFileInfo(path));
    const int count = manager.languages().size();
    kes::fuzz::require(loaded || count == 0, "a refused file adds no language");
    kes::fuzz::require(manager.shortNames().size() == count && manager.fullNames().size() == count
                           && manager.languageActions().size() == count,
                       "one name pair and one action per language");
    for (int i = 0; i < count && i < 3; ++i) {
        manager.setLanguage(i);
        kes::fuzz::require(manager.currentLanguage() == i, "every offered language can be selected");
    }
    return 0;
}
