#include "platform/core/ResourceModule.h"

#include "platform/core/StringTable.h"

#include <algorithm>

namespace seisplot {
namespace {

// The library's texts come from its built-in table, in the language of the moment.
// Its dialog templates are built into the library's dialog layer.
class LibraryResources final : public ResourceModule {
public:
    LibraryResources() { SetTemplateFolder(":/seisplot/dialogs"); }

    std::optional<CString> FindString(UINT id) const override {
        if (!HasLibraryString(id)) {
            return std::nullopt;
        }
        return LoadLibraryString(id, CurrentLanguage());
    }
};

HINSTANCE& CurrentModule() {
    static HINSTANCE current = nullptr;
    return current;
}

std::vector<HINSTANCE>& Chain() {
    // Loading the library links its module.
    static std::vector<HINSTANCE> chain{LibraryModule()};
    return chain;
}

} // namespace

void ResourceModule::SetString(UINT id, CString text) {
    m_strings[id] = std::move(text);
}

std::optional<CString> ResourceModule::FindString(UINT id) const {
    const auto it = m_strings.find(id);
    if (it == m_strings.end()) {
        return std::nullopt;
    }
    return it->second;
}

HINSTANCE LibraryModule() {
    static LibraryResources library;
    return &library;
}

void LinkResourceModule(HINSTANCE module) {
    auto& chain = Chain();
    if (module != nullptr && std::find(chain.begin(), chain.end(), module) == chain.end()) {
        chain.push_back(module);
    }
}

void UnlinkResourceModule(HINSTANCE module) {
    std::erase(Chain(), module);
}

std::vector<HINSTANCE> ResourceSearchOrder() {
    std::vector<HINSTANCE> order;
    if (CurrentModule() != nullptr) {
        order.push_back(CurrentModule());
    }
    for (HINSTANCE module : Chain()) {
        if (module != CurrentModule()) {
            order.push_back(module);
        }
    }
    return order;
}

std::optional<CString> FindResourceString(UINT id) {
    for (HINSTANCE module : ResourceSearchOrder()) {
        if (auto text = module->FindString(id)) {
            return text;
        }
    }
    return std::nullopt;
}

LibraryResourceScope::LibraryResourceScope() : m_previous(AfxGetResourceHandle()) {
    AfxSetResourceHandle(LibraryModule());
}

LibraryResourceScope::~LibraryResourceScope() {
    AfxSetResourceHandle(m_previous);
}

} // namespace seisplot

HINSTANCE AfxGetResourceHandle() {
    return seisplot::CurrentModule();
}

void AfxSetResourceHandle(HINSTANCE module) {
    seisplot::CurrentModule() = module;
}
