// The current resource module, the resource chain and the library's resource scope.

#include "platform/core/ResourceModule.h"

#include "platform/core/StringTable.h"

#include <gtest/gtest.h>

namespace {

CString Loaded(UINT id) {
    CString text("none");
    text.LoadString(id);
    return text;
}

} // namespace

TEST(ResourceModule, CurrentModuleFirstThenTheChain) {
    const CString library14505 = seisplot::LoadLibraryString(14505, seisplot::CurrentLanguage());
    const CString library14844 = seisplot::LoadLibraryString(14844, seisplot::CurrentLanguage());
    ASSERT_FALSE(library14505.IsEmpty());
    seisplot::ResourceModule host;
    host.SetString(14505, "The host's own text");
    host.SetString(90001, "Only the host has this");
    ASSERT_EQ(AfxGetResourceHandle(), nullptr);
    AfxSetResourceHandle(&host);

    EXPECT_EQ(Loaded(14505), "The host's own text");
    EXPECT_EQ(seisplot::LoadLibraryString(14505), "The host's own text");
    EXPECT_EQ(Loaded(14844), library14844); // found in the chain
    EXPECT_EQ(Loaded(90001), "Only the host has this");
    {
        seisplot::LibraryResourceScope scope;
        EXPECT_EQ(AfxGetResourceHandle(), seisplot::LibraryModule());
        EXPECT_EQ(Loaded(14505), library14505);
        EXPECT_EQ(Loaded(90001), "none"); // the host's module is not in the chain
        { seisplot::LibraryResourceScope nested; }
        EXPECT_EQ(AfxGetResourceHandle(), seisplot::LibraryModule());
    }
    EXPECT_EQ(AfxGetResourceHandle(), &host);
    EXPECT_EQ(Loaded(14505), "The host's own text");

    AfxSetResourceHandle(nullptr);
    EXPECT_EQ(Loaded(14505), library14505);
    EXPECT_EQ(Loaded(90001), "none");
}
