#pragma once
// The library's string table: numbered texts with an English and an Italian twin.
//
// The language follows the system locale (LC_ALL, then LC_MESSAGES, then LANG: a value that
// starts with "it" means Italian, anything else English). SEISPLOT_LANG=it|en overrides it.

#include "platform/core/CString.h"

namespace seisplot {

enum class Language { English, Italian };

// The language in force now (read from the environment on every call, so tests can change it).
Language CurrentLanguage();

// Whether the library's own table holds `id`.
bool HasLibraryString(UINT id);

// The text of `id` as a resource lookup finds it (the current resource module first, then
// the resource chain, see ResourceModule.h), the library's in the current language; an empty
// string when no module holds it.
CString LoadLibraryString(UINT id);
// The library's own text of `id` in `language`; an empty string for an unknown id.
CString LoadLibraryString(UINT id, Language language);

} // namespace seisplot
