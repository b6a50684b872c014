#include "platform/core/StringTable.h"

#include "platform/core/ResourceModule.h"

#include <cstdlib>
#include <cstring>

namespace seisplot {
namespace {

struct Entry {
    UINT id;
    const char* english;
    const char* italian;
};

constexpr Entry kEntries[] = {
#include "resources/string_table.inc"
};

const Entry* FindEntry(UINT id) {
    for (const Entry& entry : kEntries) {
        if (entry.id == id) {
            return &entry;
        }
    }
    return nullptr;
}

const char* FirstSet(std::initializer_list<const char*> names) {
    for (const char* name : names) {
        const char* value = std::getenv(name);
        if (value && *value) {
            return value;
        }
    }
    return nullptr;
}

} // namespace

Language CurrentLanguage() {
    const char* chosen = FirstSet({"SEISPLOT_LANG", "LC_ALL", "LC_MESSAGES", "LANG"});
    return (chosen && std::strncmp(chosen, "it", 2) == 0) ? Language::Italian : Language::English;
}

bool HasLibraryString(UINT id) {
    return FindEntry(id) != nullptr;
}

CString LoadLibraryString(UINT id) {
    return FindResourceString(id).value_or(CString());
}

CString LoadLibraryString(UINT id, Language language) {
    const Entry* entry = FindEntry(id);
    if (!entry) {
        return CString();
    }
    return CString(language == Language::Italian ? entry->italian : entry->english);
}

} // namespace seisplot
