// CString, and the string table with its choice of language.

#include "platform/core/CString.h"
#include "platform/core/ScriptedUserInterface.h"
#include "platform/core/StringTable.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>
#include <vector>

TEST(String, FormatFollowsPrintf) {
    CString s;
    s.Format("%5.2f|%-4d|%s|%03X|%c|%%|%+.1e", 3.14159, 42, "abc", 255, 'z', -1234.5);
    EXPECT_EQ(s, " 3.14|42  |abc|0FF|z|%|-1.2e+03");
    // Longer than any fixed buffer a formatter might use.
    const std::string big(5000, 'q');
    s.Format("<%s>", big.c_str());
    EXPECT_EQ(s.GetLength(), 5002);
    EXPECT_EQ(s.Right(3), "qq>");
    s.AppendFormat("%d", 7);
    EXPECT_EQ(s.Right(2), ">7");
}

TEST(String, ExtractionClampsOutOfRangeArguments) {
    const CString s("Seisplot");
    EXPECT_EQ(s.Mid(4), "plot");
    EXPECT_EQ(s.Mid(2, 3), "isp");
    EXPECT_EQ(s.Mid(-2, 3), "Sei");
    EXPECT_EQ(s.Mid(5, 100), "lot");
    EXPECT_EQ(s.Mid(20), "");
    EXPECT_EQ(s.Mid(8), "");
    EXPECT_EQ(s.Mid(2, -1), "");
    EXPECT_EQ(s.Left(4), "Seis");
    EXPECT_EQ(s.Left(-1), "");
    EXPECT_EQ(s.Left(100), "Seisplot");
    EXPECT_EQ(s.Right(3), "lot");
    EXPECT_EQ(s.Right(-5), "");
    EXPECT_EQ(s.Right(100), "Seisplot");
    EXPECT_EQ(s.GetAt(100), '\0');
}

TEST(String, FindReturnsMinusOneWhenAbsent) {
    const CString s("Seisplot.acc");
    EXPECT_EQ(s.Find('s'), 3);
    EXPECT_EQ(s.Find('s', 3), 3);
    EXPECT_EQ(s.Find('s', 4), -1);
    EXPECT_EQ(s.Find('z'), -1);
    EXPECT_EQ(s.Find('S', 100), -1);
    EXPECT_EQ(s.Find("plot"), 4);
    EXPECT_EQ(s.Find("acc", 10), -1);
    EXPECT_EQ(s.Find("PLOT"), -1);
    EXPECT_EQ(s.ReverseFind('c'), 11);
    EXPECT_EQ(s.ReverseFind('x'), -1);
    EXPECT_EQ(s.FindOneOf(".l"), 5);
    EXPECT_EQ(CString().Find('a'), -1);
}

TEST(String, TokenizeSkipsRunsOfSeparators) {
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
}

TEST(String, TrimReplaceAndCompare) {
    CString s("\t  two words \r\n");
    s.Trim();
    EXPECT_EQ(s, "two words");
    CString ext("*.acc");
    ext.TrimLeft("*.");
    EXPECT_EQ(ext, "acc");
    CString padded("xxabcxx");
    padded.TrimRight('x');
    EXPECT_EQ(padded, "xxabc");

    CString r("a.b.c");
    EXPECT_EQ(r.Replace('.', ','), 2);
    EXPECT_EQ(r, "a,b,c");
    CString grow("aaa");
    EXPECT_EQ(grow.Replace("a", "aa"), 3);
    EXPECT_EQ(grow, "aaaaaa");
    CString shrink("abab");
    EXPECT_EQ(shrink.Replace("ab", ""), 2);
    EXPECT_TRUE(shrink.IsEmpty());
    EXPECT_EQ(r.Replace("zz", "y"), 0);
    EXPECT_EQ(r, "a,b,c");

    const CString name("Kobe");
    EXPECT_EQ(name.CompareNoCase("KOBE"), 0);
    EXPECT_LT(name.CompareNoCase("kobf"), 0);
    EXPECT_GT(name.CompareNoCase("KOB"), 0);
    EXPECT_LT(name.Compare("kobe"), 0); // 'K' sorts before 'k'
    EXPECT_TRUE(name == "Kobe");
    EXPECT_TRUE("Kobe" == name);
    EXPECT_TRUE(name != "kobe");
    EXPECT_TRUE(CString("Athens") < name);
    const char* raw = name;
    EXPECT_STREQ(raw, "Kobe");
    EXPECT_EQ(std::strlen(name), 4u);

    CString buffer;
    const int written = std::snprintf(buffer.GetBuffer(16), 16, "%d-%d", 12, 34);
    buffer.ReleaseBuffer();
    EXPECT_EQ(buffer.GetLength(), written);
    EXPECT_EQ(buffer, "12-34");
}

namespace {

// Clears the variables that choose the language and puts them back afterwards.
class LanguageEnvironment {
public:
    LanguageEnvironment() {
        for (const char* name : kNames) {
            const char* value = std::getenv(name);
            m_saved.emplace_back(value ? std::optional<std::string>(value) : std::nullopt);
            ::unsetenv(name);
        }
    }
    ~LanguageEnvironment() {
        for (size_t i = 0; i < std::size(kNames); ++i) {
            if (m_saved[i]) {
                ::setenv(kNames[i], m_saved[i]->c_str(), 1);
            } else {
                ::unsetenv(kNames[i]);
            }
        }
    }
    LanguageEnvironment(const LanguageEnvironment&) = delete;
    LanguageEnvironment& operator=(const LanguageEnvironment&) = delete;

    void Set(const char* name, const char* value) { ::setenv(name, value, 1); }

private:
    static constexpr const char* kNames[] = {"SEISPLOT_LANG", "LC_ALL", "LC_MESSAGES", "LANG"};
    std::vector<std::optional<std::string>> m_saved;
};

} // namespace

TEST(StringTable, EnglishTexts) {
    LanguageEnvironment env;
    env.Set("SEISPLOT_LANG", "en");
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
        EXPECT_EQ(seisplot::LoadLibraryString(id), english);
        EXPECT_EQ(seisplot::LoadLibraryString(id, seisplot::Language::English), english);
        const CString italian = seisplot::LoadLibraryString(id, seisplot::Language::Italian);
        EXPECT_FALSE(italian.IsEmpty());
        EXPECT_NE(italian, english);
        CString loaded;
        EXPECT_TRUE(loaded.LoadString(id));
        EXPECT_EQ(loaded, english);
    }
    EXPECT_FALSE(seisplot::HasLibraryString(14507));
    EXPECT_TRUE(seisplot::LoadLibraryString(14507).IsEmpty());
    CString untouched("kept");
    EXPECT_FALSE(untouched.LoadString(1));
    EXPECT_EQ(untouched, "kept");
}

TEST(StringTable, LanguageComesFromTheEnvironment) {
    using seisplot::Language;
    struct Case {
        const char* seisplot;
        const char* all;
        const char* messages;
        const char* lang;
        Language expected;
    };
    const Case cases[] = {
        {nullptr, nullptr, nullptr, nullptr, Language::English},
        {nullptr, nullptr, nullptr, "it_IT.UTF-8", Language::Italian},
        {nullptr, nullptr, "it_IT.UTF-8", "en_GB.UTF-8", Language::Italian},
        {nullptr, "en_US.UTF-8", "it_IT.UTF-8", "it_IT.UTF-8", Language::English},
        {nullptr, "it_CH", nullptr, "en_US", Language::Italian},
        {nullptr, "", nullptr, "it_IT", Language::Italian},
        {"en", "it_IT.UTF-8", nullptr, nullptr, Language::English},
        {"it", "C", "C", "C", Language::Italian},
        {nullptr, nullptr, nullptr, "de_DE.UTF-8", Language::English},
    };
    for (const Case& c : cases) {
        LanguageEnvironment env;
        const char* const names[] = {"SEISPLOT_LANG", "LC_ALL", "LC_MESSAGES", "LANG"};
        const char* const values[] = {c.seisplot, c.all, c.messages, c.lang};
        testing::Message trace;
        for (int i = 0; i < 4; ++i) {
            if (values[i]) {
                env.Set(names[i], values[i]);
                trace << names[i] << '=' << values[i] << ' ';
            }
        }
        SCOPED_TRACE(trace);
        EXPECT_EQ(seisplot::CurrentLanguage(), c.expected);
        EXPECT_EQ(seisplot::LoadLibraryString(14844),
                  seisplot::LoadLibraryString(14844, c.expected));
    }
}

TEST(StringTable, MessageBoxShowsTheTextOfAnId) {
    seisplot::ScriptedUserInterface ui;
    seisplot::ScopedUserInterface scope(ui);
    LanguageEnvironment env;
    env.Set("SEISPLOT_LANG", "en");
    ui.QueueAnswer(IDNO);
    EXPECT_EQ(AfxMessageBox(14842, MB_YESNO | MB_ICONQUESTION), IDNO);
    env.Set("SEISPLOT_LANG", "it");
    EXPECT_EQ(AfxMessageBox(14844), IDOK);

    ASSERT_EQ(ui.Messages().size(), 2u);
    EXPECT_EQ(ui.Messages()[0].text,
              "Are you sure you wish to delete this accelerogram from the list?");
    EXPECT_EQ(ui.Messages()[0].type, MB_YESNO | MB_ICONQUESTION);
    EXPECT_EQ(ui.Messages()[1].text,
              seisplot::LoadLibraryString(14844, seisplot::Language::Italian));
    EXPECT_EQ(ui.Messages()[1].type, MB_OK);
    EXPECT_EQ(ui.Unanswered(), 0);
}
