// CString, and the string table with its choice of language.

#include "platform/core/CString.h"
#include "platform/core/ScriptedUserInterface.h"
#include "platform/core/StringTable.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <utility>
#include <vector>

TEST(String, FormatFollowsPrintf) {
    CString s;
    s.Format("%5.2f|%-4d|%s|%03X|%c|%%|%+.1e", 3.14159, 42, "abc", 255, 'z', -1234.5);
    EXPECT_EQ(s, " 3.14|42  |abc|0FF|z|%|-1.2e+03");
    // Longer than any fixed buffer a formatter might use.
    const std::string big(5000, 'q');
    s.Format("<%s>", big.c_str());
    s.AppendFormat("%d", 7);
    EXPECT_EQ(s.GetLength(), 5003);
    EXPECT_EQ(s.Right(3), "q>7");

    CString buffer;
    const int written = std::snprintf(buffer.GetBuffer(16), 16, "%d-%d", 12, 34);
    buffer.ReleaseBuffer();
    EXPECT_EQ(buffer.GetLength(), written);
    EXPECT_EQ(buffer, "12-34");
}

TEST(String, ExtractionAndSearchClampOutOfRangeArguments) {
    const CString s("Seisplot.acc");
    EXPECT_EQ((std::vector<CString>{s.Mid(-2, 3), s.Mid(9, 100), s.Mid(12), s.Mid(2, -1),
                                    s.Left(-1), s.Left(100), s.Right(-5), s.Right(100)}),
              (std::vector<CString>{"Sei", "acc", "", "", "", s, "", s}));
    EXPECT_EQ(s.GetAt(100), '\0');
    EXPECT_EQ((std::vector<int>{s.Find('s', 3), s.Find('s', 4), s.Find('S', 100), s.Find("plot"),
                                s.ReverseFind('c'), s.FindOneOf(".l")}),
              (std::vector<int>{3, -1, -1, 4, 11, 5}));
}

TEST(String, TokenizeTrimReplaceAndCompare) {
    const CString line(" 0.01, 0.25;;-9.81 ,");
    std::vector<CString> tokens;
    int position = 0;
    for (CString token = line.Tokenize(",; ", position); position >= 0;
         token = line.Tokenize(",; ", position)) {
        tokens.push_back(token);
    }
    EXPECT_EQ(tokens, (std::vector<CString>{"0.01", "0.25", "-9.81"}));
    position = 0;
    EXPECT_EQ(CString(",,;").Tokenize(",;", position), "");
    EXPECT_EQ(position, -1);

    CString s("\t  two words \r\n");
    s.Trim();
    EXPECT_EQ(s, "two words");
    CString ext("*.acc");
    ext.TrimLeft("*.");
    EXPECT_EQ(ext, "acc");

    CString r("a.b.c");
    EXPECT_EQ(r.Replace('.', ','), 2);
    EXPECT_EQ(r, "a,b,c");
    // The replacement contains what it replaces: each original match is replaced once.
    CString grow("aaa");
    EXPECT_EQ(grow.Replace("a", "aa"), 3);
    EXPECT_EQ(grow, "aaaaaa");

    const CString name("Kobe");
    EXPECT_EQ(name.CompareNoCase("KOBE"), 0);
    EXPECT_GT(name.CompareNoCase("KOB"), 0);
    EXPECT_LT(name.Compare("kobe"), 0); // 'K' sorts before 'k'
}

namespace {

// Sets the variables that choose the language (nullptr: unset) and puts them back afterwards.
class StringTable : public ::testing::Test {
protected:
    using Values = std::array<const char*, 4>;
    static constexpr Values kNames = {"SEISPLOT_LANG", "LC_ALL", "LC_MESSAGES", "LANG"};

    void SetUp() override {
        for (const char* name : kNames) {
            const char* value = std::getenv(name);
            m_saved.emplace_back(value ? std::optional<std::string>(value) : std::nullopt);
        }
    }
    void TearDown() override {
        Values values{};
        for (size_t i = 0; i < kNames.size(); ++i) {
            values[i] = m_saved[i] ? m_saved[i]->c_str() : nullptr;
        }
        SetAll(values);
    }
    static void SetAll(const Values& values) {
        for (size_t i = 0; i < kNames.size(); ++i) {
            values[i] ? ::setenv(kNames[i], values[i], 1) : ::unsetenv(kNames[i]);
        }
    }

private:
    std::vector<std::optional<std::string>> m_saved;
};

} // namespace

TEST_F(StringTable, EnglishTextsAndMessageBoxes) {
    SetAll({"en", nullptr, nullptr, nullptr});
    const std::pair<UINT, const char*> texts[] = {
        {14505, "Curves have been changed. Save to disk?"},
        {14506, "Give a name to each variable relative to each curve (no blanks)."},
        {14840, "Set the units to be used to read from file"},
        {14841, "It already exists another accelerogram with the same name"},
        {14842, "Are you sure you wish to delete this accelerogram from the list?"},
        {14843, "Add them all (YES) or just one (NO)?"},
        {14844, "Warning: maxT or dT null!"},
        {14845, "Warning: there is no accelerogram selected!"},
    };
    for (const auto& [id, english] : texts) {
        SCOPED_TRACE(id);
        CString loaded;
        EXPECT_TRUE(loaded.LoadString(id));
        EXPECT_EQ(loaded, english);
        const CString italian = seisplot::LoadLibraryString(id, seisplot::Language::Italian);
        EXPECT_FALSE(italian.IsEmpty());
        EXPECT_NE(italian, english);
    }
    EXPECT_TRUE(seisplot::LoadLibraryString(14507).IsEmpty());
    CString untouched("kept");
    EXPECT_FALSE(untouched.LoadString(1));
    EXPECT_EQ(untouched, "kept");

    // A message box by id shows the text in the language of the moment.
    seisplot::ScriptedUserInterface ui;
    seisplot::ScopedUserInterface scope(ui);
    ui.QueueAnswer(IDNO);
    EXPECT_EQ(AfxMessageBox(14842, MB_YESNO | MB_ICONQUESTION), IDNO);
    SetAll({"it", nullptr, nullptr, nullptr});
    EXPECT_EQ(AfxMessageBox(14844), IDOK);
    ASSERT_EQ(ui.Messages().size(), 2u);
    EXPECT_EQ(ui.Messages()[0].text, texts[4].second);
    EXPECT_EQ(ui.Messages()[0].type, MB_YESNO | MB_ICONQUESTION);
    EXPECT_EQ(ui.Messages()[1].text,
              seisplot::LoadLibraryString(14844, seisplot::Language::Italian));
}

TEST_F(StringTable, LanguageComesFromTheEnvironmentInOrder) {
    using seisplot::Language;
    // SEISPLOT_LANG, LC_ALL, LC_MESSAGES, LANG; the first one set and not empty decides.
    const std::pair<Values, Language> cases[] = {
        {{nullptr, nullptr, nullptr, nullptr}, Language::English},
        {{nullptr, nullptr, nullptr, "it_IT.UTF-8"}, Language::Italian},
        {{nullptr, nullptr, nullptr, "de_DE.UTF-8"}, Language::English},
        {{nullptr, nullptr, "it_IT.UTF-8", "en_GB.UTF-8"}, Language::Italian},
        {{nullptr, "en_US.UTF-8", "it_IT.UTF-8", "it_IT.UTF-8"}, Language::English},
        {{nullptr, "", nullptr, "it_IT"}, Language::Italian},
        {{"en", "it_IT.UTF-8", nullptr, nullptr}, Language::English},
        {{"it", "C", "C", "C"}, Language::Italian},
    };
    for (size_t i = 0; i < std::size(cases); ++i) {
        SCOPED_TRACE(i);
        SetAll(cases[i].first);
        EXPECT_EQ(seisplot::CurrentLanguage(), cases[i].second);
    }
}
