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

bool HasLibraryString(UINT id);

// The text of `id` in the current language; an empty string for an unknown id.
CString LoadLibraryString(UINT id);
CString LoadLibraryString(UINT id, Language language);

} // namespace seisplot
