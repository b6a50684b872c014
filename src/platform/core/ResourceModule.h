#pragma once
// Resource modules: the program and each library it loads hold their own numbered texts
// (and dialog templates). A lookup tries the current resource module first, then the
// modules linked into the resource chain, so that a library's own resources are found while
// it runs and the program's are found again once it has returned.

#include "platform/core/CString.h"

#include <map>
#include <optional>
#include <vector>

namespace seisplot {

// One module's resources: its string table and the folder of its dialog templates.
class ResourceModule {
public:
    ResourceModule() = default;
    ResourceModule(const ResourceModule&) = delete;
    ResourceModule& operator=(const ResourceModule&) = delete;
    virtual ~ResourceModule() = default;

    void SetString(UINT id, CString text);
    // The text of `id`, when this module holds one.
    virtual std::optional<CString> FindString(UINT id) const;

    // Where the module's dialog templates are, as "<folder>/<id>.ui" files (empty: none). The
    // dialog layer looks for a template in the modules of the search order.
    void SetTemplateFolder(CString folder) { m_templateFolder = std::move(folder); }
    const CString& TemplateFolder() const { return m_templateFolder; }

private:
    std::map<UINT, CString> m_strings;
    CString m_templateFolder;
};

} // namespace seisplot

// A module handle, as the framework names the program and its libraries.
using HINSTANCE = seisplot::ResourceModule*;

// The module searched first; null at start (the program brings no resources of its own).
HINSTANCE AfxGetResourceHandle();
void AfxSetResourceHandle(HINSTANCE module);

namespace seisplot {

// The library's own module: its string table, in the current language. It is linked into
// the resource chain when the library is loaded.
HINSTANCE LibraryModule();

// Appends `module` to the resource chain unless it is linked already.
void LinkResourceModule(HINSTANCE module);
// Takes `module` out of the chain, as a module does when it is unloaded.
void UnlinkResourceModule(HINSTANCE module);

// The modules a lookup searches, in order: the current one, then the chain, each once.
std::vector<HINSTANCE> ResourceSearchOrder();

// The text of `id` from the first module in the search order that holds it.
std::optional<CString> FindResourceString(UINT id);

// Makes the library's module the current resource module while it lives and puts the
// previous one back when it ends: every library operation that needs its own dialog
// templates or texts runs inside one.
class LibraryResourceScope {
public:
    LibraryResourceScope();
    ~LibraryResourceScope();
    LibraryResourceScope(const LibraryResourceScope&) = delete;
    LibraryResourceScope& operator=(const LibraryResourceScope&) = delete;

private:
    HINSTANCE m_previous;
};

} // namespace seisplot
