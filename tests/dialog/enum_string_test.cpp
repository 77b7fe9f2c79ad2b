#include "dialog/CNavEnumString.h"

#include <gmock/gmock.h>

#include "support/AllocationSpy.h"
#include "support/Printers.h"
#include "support/ScopedTempFolder.h"

namespace knav::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Hands out its texts one by one; asked for more than there are, what is left and S_FALSE.
class FakeStrings final : public IEnumString {
public:
    explicit FakeStrings(std::vector<std::wstring> texts) : m_texts(std::move(texts)) {}
    STDMETHOD(QueryInterface)(REFIID iid, void** object) override {
        const bool known = iid == IID_IUnknown || iid == IID_IEnumString;
        *object = known ? this : nullptr;
        references += known;
        return known ? S_OK : E_NOINTERFACE;
    }
    STDMETHOD_(ULONG, AddRef)() override { return static_cast<ULONG>(++references); }
    STDMETHOD_(ULONG, Release)() override { return static_cast<ULONG>(--references); }
    STDMETHOD(Next)(ULONG count, LPOLESTR* texts, ULONG* fetched) override {
        ULONG given = 0;
        for (; given < count && m_next < m_texts.size(); ++given) {
            SHStrDupW(m_texts[m_next++].c_str(), &texts[given]);
        }
        if (fetched) {
            *fetched = given;
        }
        return given == count ? S_OK : S_FALSE;
    }
    STDMETHOD(Skip)(ULONG count) override {
        m_next += count;
        return S_OK;
    }
    STDMETHOD(Reset)() override {
        m_next = 0;
        return S_OK;
    }
    STDMETHOD(Clone)(IEnumString** copy) override {
        *copy = nullptr;
        return E_NOTIMPL;
    }

    int references = 0;

private:
    std::vector<std::wstring> m_texts;
    std::size_t m_next = 0;
};

ComPtr<CNavEnumString> suggestions(FakeStrings& source, const CString& folder, CNavEnumString::Patterns patterns) {
    return ComPtr<CNavEnumString>::adopt(new CNavEnumString(&source, std::wstring(folder.view()), std::move(patterns)));
}

/// All that is left, fetched `atOnce` at a time, as a completion list does.
std::vector<std::wstring> rest(IEnumString* from, ULONG atOnce) {
    std::vector<std::wstring> texts;
    HRESULT result = S_OK;
    while (result == S_OK) {
        std::vector<LPOLESTR> batch(atOnce);
        ULONG fetched = 0;
        result = from->Next(atOnce, batch.data(), &fetched);
        for (ULONG i = 0; i < fetched; ++i) {
            texts.emplace_back(batch[i]);
            CoTaskMemFree(batch[i]);
        }
    }
    return texts;
}

class EnumString : public testing::Test {
protected:
    EnumString() {
        for (const wchar_t* const name : {L"a.dwg", L"b.DWG", L"c.txt", L"d.dxf", L"noext", L"e.old.dwg"}) {
            folder.addFile(name);
        }
        folder.addFolder(L"sub.txt");
    }

    ScopedTempFolder folder;
    FakeStrings source{{L"a.dwg", L"b.DWG", L"c.txt", L"d.dxf", L"noext", L"e.old.dwg", L"sub.txt"}};
};

TEST_F(EnumString, Patterns_LetFoldersNamesWithoutExtensionAndTheirOwnPass) {
    const std::vector<std::wstring> everything = {L"a.dwg", L"b.DWG",     L"c.txt",  L"d.dxf",
                                                  L"noext", L"e.old.dwg", L"sub.txt"};
    const std::pair<CNavEnumString::Patterns, std::vector<std::wstring>> rows[] = {
        {{L"*.Dwg", L"*.dxf"}, {L"a.dwg", L"b.DWG", L"d.dxf", L"noext", L"e.old.dwg", L"sub.txt"}},
        {{L"*.none"}, {L"noext", L"sub.txt"}},
        {{}, everything},
        {{L"*.none", L"*.*"}, everything},
        {{L"*"}, everything},
    };
    const LONG before = AllocationSpy::live();
    for (const auto& [patterns, passing] : rows) {
        for (const ULONG atOnce : {1u, 3u, 10u}) {
            const auto names = suggestions(source, folder.path() + L"\\", patterns);
            EXPECT_EQ(rest(names.get(), atOnce), passing) << atOnce;
            names->Reset();
            EXPECT_EQ(source.references, 1);
        }
    }
    EXPECT_EQ(source.references, 0);
    EXPECT_EQ(AllocationSpy::live(), before) << "the texts that were dropped are freed";
}

TEST_F(EnumString, FolderWithADotInItsName_DoesNotLendItToAFile) {
    folder.addFile(L"v1.5\\readme");
    FakeStrings one({L"readme"});
    const auto names = suggestions(one, folder.path(L"v1.5"), {L"*.dwg"});
    EXPECT_THAT(rest(names.get(), 1), ElementsAre(L"readme"));
}

TEST_F(EnumString, NewFolderAndPatterns_CountFromThenOn) {
    const auto names = suggestions(source, folder.path(L"elsewhere"), {L"*.dxf"});
    names->setDirectory(std::wstring(folder.path().view()));
    names->setPatterns({L"*.txt"});
    EXPECT_THAT(rest(names.get(), 1), ElementsAre(L"c.txt", L"noext", L"sub.txt"));
}

TEST_F(EnumString, SkipAndReset_PassThrough) {
    const auto names = suggestions(source, folder.path(), {L"*.dwg"});
    EXPECT_EQ(names->Skip(5), S_OK);
    EXPECT_THAT(rest(names.get(), 1), ElementsAre(L"e.old.dwg", L"sub.txt"));
    EXPECT_EQ(names->Reset(), S_OK);
    EXPECT_EQ(rest(names.get(), 1).size(), 5u);
    IEnumString* copy = nullptr;
    EXPECT_EQ(names->Clone(&copy), E_NOTIMPL);
}

TEST_F(EnumString, WithoutSource_IsEmpty) {
    const auto names = ComPtr<CNavEnumString>::adopt(new CNavEnumString(nullptr, L"C:", {}));
    EXPECT_FALSE(names->valid());
    EXPECT_THAT(rest(names.get(), 1), IsEmpty());
}

}  // namespace
}  // namespace knav::test
