#include "pages.h"

#include "usercatalogue.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Part
{
    const char *name;
    QLatin1StringView path;
};

constexpr Part parts[] = {
    {QT_TRANSLATE_NOOP("Settings", "Language"), "palvestrin.language."_L1},
    {QT_TRANSLATE_NOOP("Settings", "Log"), "palvestrin.logger."_L1},
    {QT_TRANSLATE_NOOP("Settings", "Database"), "palvestrin.db."_L1},
    {QT_TRANSLATE_NOOP("Settings", "Programs"), "palvestrin.bin."_L1},
    {QT_TRANSLATE_NOOP("Settings", "Receipt printer"), "palvestrin.escpos."_L1},
};

/// The kinds in the order of their first print methods, each called as its first method's paper is.
std::vector<Page> allPages()
{
    std::vector<Page> all;
    for (const vocabulary::PrintMethod &method : vocabulary::printMethods) {
        const QString path = vocabulary::findDocumentKind(QString(method.kind))->path();
        const auto known = std::ranges::find(all, path, &Page::path);
        if (known == all.end())
            all.push_back({method.title.data(), path, {&method}});
        else
            known->methods.push_back(&method);
    }
    for (const Part &part : parts)
        all.push_back({part.name, part.path, {}});
    return all;
}

} // namespace

QString Page::title() const
{
    return inUserLanguage(name);
}

const std::vector<Page> &pages()
{
    static const std::vector<Page> all = allPages();
    return all;
}

const Page *pageOf(const QString &key)
{
    const auto found =
        std::ranges::find_if(pages(), [&](const Page &page) { return key.startsWith(page.path); });
    return found == pages().end() ? nullptr : &*found;
}
