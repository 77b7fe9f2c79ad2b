// The chain of resource modules.
#include <platform/Resources.h>
#include <ry/RyUtResource.h>

#include <gtest/gtest.h>

#include <vector>

#include "resources/ids.h"
#include "support/ScopedTempFolder.h"

namespace {

constexpr UINT kString = IDS_KNAV_REPLACE_REMOTE;
static_assert((kString + 1) / 16 == kString / 16, "both strings are in one block");

// A module of which nothing is known but this one string.
HINSTANCE moduleWithOneString(const CString& path, std::wstring_view text) {
    const HINSTANCE framework = RyUtResource::loadDll(L"zoui.dll");
    wchar_t source[MAX_PATH];
    GetModuleFileNameW(framework, source, MAX_PATH);
    RyUtResource::freeDll(framework);
    CopyFileW(source, path, FALSE);
    std::vector<WORD> block(kString % 16);
    block.push_back(static_cast<WORD>(text.size()));
    block.insert(block.end(), text.begin(), text.end());
    block.resize(16 + text.size());
    const HANDLE update = BeginUpdateResourceW(path, FALSE);
    UpdateResourceW(update, RT_STRING, MAKEINTRESOURCEW(kString / 16 + 1), MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL),
                    block.data(), static_cast<DWORD>(block.size() * sizeof(WORD)));
    EndUpdateResourceW(update, FALSE);
    return LoadLibraryExW(path, nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
}

CString load(UINT id) {
    CString text(L"before");
    const BOOL found = text.LoadString(id);
    EXPECT_EQ(found != FALSE, !text.IsEmpty());
    return text;
}

TEST(ResourceChain, SearchesCurrentThenNewestExtensionFirst) {
    const knav::test::ScopedTempFolder folder;
    const HINSTANCE old = RyUtResource::loadDll(L"KnavRes.dll");
    const HINSTANCE newer = moduleWithOneString(folder.path(L"new.dll"), L"new");
    EXPECT_STREQ(load(kString), L"");
    {
        const CDynLinkLibrary oldLink(old);
        const CString text = load(kString);
        EXPECT_FALSE(text.IsEmpty());
        {
            const CDynLinkLibrary newLink(newer);
            EXPECT_STREQ(load(kString), L"new");
            EXPECT_STRNE(load(kString + 1), L"") << "its block is in both, the string in one";
            const ScopedResourceHandle current(old);
            EXPECT_EQ(load(kString), text);
            { const ScopedResourceHandle inner(newer); }
            EXPECT_EQ(AfxGetResourceHandle(), old);
            { const CDynLinkLibrary linkedTwice(old); }
        }
        EXPECT_EQ(AfxGetResourceHandle(), GetModuleHandleW(nullptr));
        EXPECT_EQ(load(kString), text);
        EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(IDR_KNAV_OK_MENU), RT_MENU), old);
        EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(1), RT_MENU), AfxGetResourceHandle()) << "in none of them";
    }
    EXPECT_STREQ(load(kString), L"");
    FreeLibrary(newer);
    RyUtResource::freeDll(old);
}

}  // namespace
