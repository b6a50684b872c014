#include "records/AccelerogramColl.h"

#include "platform/core/CFileDialog.h"
#include "platform/core/CProgressCtrl.h"
#include "platform/core/ScriptedUserInterface.h"
#include "support/ArchiveBytes.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <tuple>
#include <vector>

using seisplot::ScopedUserInterface;
using seisplot::ScriptedUserInterface;
using seisplot::test::ArchiveCause;
using seisplot::test::Bytes;
using seisplot::test::LoadObject;
using seisplot::test::StoreObject;
using seisplot::test::StreamBuilder;
using seisplot::test::TempDir;

namespace {

Bytes FileBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// A record with a name, views, identifiers, event data and samples that differ by `seed`.
Accelerogram Made(const char* name, double seed) {
    const double t[] = {0.0, 0.01, 0.02, 0.03};
    const double a[] = {seed, -2.5 * seed, 0.125, seed / 3.0};
    Accelerogram r(4, const_cast<double*>(t), const_cast<double*>(a));
    r.SetName(name);
    r.Select(300);
    r.Identifier = CString(name) + " id";
    r.FileIdentifier = CString(name) + ".ASC";
    r.Explanation = "made for the collection";
    r.Mw = 5.0 + seed;
    r.Latitude = 42.0 + seed / 100.0;
    r.Backazimuth = 200.0 + seed;
    r.IsVertical = 1;
    r.EventDate = COleDateTime(2009, 4, 6, 0, 0, 0);
    r.User5 = name;
    return r;
}

std::vector<CString> Names(const AccelerogramColl& c) {
    std::vector<CString> names;
    for (unsigned long i = 1; i <= c.GetAccelerogramNum(); ++i) {
        names.push_back(c.GetAccelerogram(i).GetName());
    }
    return names;
}

AccelerogramColl Lettered(const char* letters) {
    AccelerogramColl c;
    for (const char* p = letters; *p; ++p) {
        Accelerogram r;
        r.SetName(CString(*p));
        c.AddAccelerogram(r);
    }
    return c;
}

// An ITACA file of three samples in cm/s^2 at 0.01 s.
std::string ItacaText() {
    return "EVENT_NAME: test event\n"
           "EVENT_ID: IT-0001\n"
           "EVENT_DATE_YYYYMMDD: 20090406\n"
           "EVENT_TIME_HHMMSS: 013239\n"
           "STREAM: HNE\n"
           "NDATA: 3\n"
           "SAMPLING_INTERVAL_S: 0.010000\n"
           "UNITS: cm/s^2\n"
           "DATA_TYPE: ACCELERATION\n"
           "0.000000e+00\n"
           "9.810000e+01\n"
           "-1.962000e+02\n";
}

// Records every state the import leaves the bar in.
class ProgressRecorder : public CProgressCtrl {
public:
    struct State {
        int lower;
        int upper;
        int position;
        bool operator==(const State&) const = default;
    };
    std::vector<State> states;

protected:
    void Changed() override {
        State s{};
        GetRange(s.lower, s.upper);
        s.position = GetPos();
        states.push_back(s);
    }
};

using Shown = std::tuple<std::string, UINT>;

std::vector<Shown> ShownMessages(const ScriptedUserInterface& ui) {
    std::vector<Shown> shown;
    for (const auto& m : ui.Messages()) {
        shown.emplace_back(m.text.str(), m.type);
    }
    return shown;
}

} // namespace

// ---- archive ----

TEST(AccelerogramCollTest, EmptyCollectionIsTheWordOneAndAZeroCount) {
    TempDir dir;
    CString path(dir.Path("empty.acc"));
    AccelerogramColl empty;
    EXPECT_EQ(empty.WriteToFile(path), 0);
    EXPECT_EQ(FileBytes(path.str()), (Bytes{0x01, 0x00, 0x00, 0x00, 0x00, 0x00}));

    AccelerogramColl back = Lettered("xy");
    EXPECT_EQ(back.ReadFromFile(path), 0);
    EXPECT_EQ(back.GetAccelerogramNum(), 0u);
    EXPECT_EQ(back.GetPAccelerograms(), nullptr);
}

TEST(AccelerogramCollTest, AccFileHoldsTheCollectionFormAndReadsBackEveryFieldAndSample) {
    TempDir dir;
    CString path(dir.Path("two.acc"));
    AccelerogramColl c;
    Accelerogram first = Made("first", 1.5);
    Accelerogram second = Made("second", -3.25);
    second.Unselect(300);
    c.AddAccelerogram(first);
    c.AddAccelerogram(second);
    ASSERT_EQ(c.WriteToFile(path), 0);

    // Word 1, count 2, then the two records' own forms, with nothing after them.
    const Bytes expected = StreamBuilder()
                               .Word(1)
                               .Dword(2)
                               .Append(StoreObject(first))
                               .Append(StoreObject(second))
                               .bytes();
    EXPECT_EQ(FileBytes(path.str()), expected);

    AccelerogramColl back = Lettered("z");
    ASSERT_EQ(back.ReadFromFile(path), 0);
    ASSERT_EQ(back.GetAccelerogramNum(), 2u);
    // Every archived field and sample: each record read back stores the same bytes.
    EXPECT_EQ(StoreObject(back[0]), StoreObject(first));
    EXPECT_EQ(StoreObject(back[1]), StoreObject(second));
    EXPECT_EQ(back[1].Record[1].GetY(), 8.125); // -2.5 * -3.25
    EXPECT_TRUE(back[0].IsSelected(300));
    EXPECT_FALSE(back[1].IsSelected(300));
}

TEST(AccelerogramCollTest, FileAndArchiveErrorsReachTheCaller) {
    TempDir dir;
    CString missing(dir.Path("missing.acc"));
    AccelerogramColl c = Lettered("ab");
    try {
        c.ReadFromFile(missing);
        ADD_FAILURE() << "no exception for a missing file";
    } catch (CFileException* e) {
        EXPECT_EQ(e->m_cause, CFileException::fileNotFound);
        e->Delete();
    }
    EXPECT_EQ(c.GetAccelerogramNum(), 2u); // never opened: nothing replaced

    // A file cut short by one byte: the archive ends early inside the second record.
    AccelerogramColl two;
    two.AddAccelerogram(Made("first", 1.0));
    two.AddAccelerogram(Made("second", 2.0));
    CString whole(dir.Path("whole.acc"));
    two.WriteToFile(whole);
    Bytes bytes = FileBytes(whole.str());
    bytes.pop_back();
    CString cut(dir.Write("cut.acc", std::string(bytes.begin(), bytes.end())));
    EXPECT_EQ(ArchiveCause([&] { c.ReadFromFile(cut); }), CArchiveException::endOfFile);
    EXPECT_EQ(c.GetAccelerogramNum(), 0u);
}

TEST(AccelerogramCollTest, StoredCountIsCheckedAgainstTheShortestRecord) {
    // Four billion records claimed in a ten-byte stream fail before anything is allocated.
    AccelerogramColl c = Lettered("abc");
    const Bytes huge = StreamBuilder().Word(1).Dword(4000000000u).Dword(0).bytes();
    EXPECT_EQ(ArchiveCause([&] { LoadObject(huge, c); }), CArchiveException::endOfFile);
    EXPECT_EQ(c.GetAccelerogramNum(), 0u);

    // The check must not refuse the shortest record there is: an unnamed version-100 record
    // (name, views, version, identifier, explanation) with an empty curve.
    PCurve noPoints;
    const Bytes curve = StoreObject(noPoints);
    ASSERT_EQ(curve.size(), 17u);
    const Bytes shortest = StreamBuilder()
                               .Word(1)
                               .Dword(1)
                               .Text("")
                               .Word(0)
                               .Word(100)
                               .Text("")
                               .Text("")
                               .Append(curve)
                               .bytes();
    ASSERT_EQ(shortest.size(), 6u + 24u);
    AccelerogramColl one;
    EXPECT_EQ(LoadObject(shortest, one), 0u);
    EXPECT_EQ(one.GetAccelerogramNum(), 1u);
    EXPECT_EQ(one[0].Record.GetNP(), 0);
}

// ---- container ----

TEST(AccelerogramCollTest, RemapRenumbersAroundTheRemovedRecords) {
    AccelerogramColl c;
    const unsigned long removed[] = {2, 5};
    EXPECT_EQ(c.remap(removed, 2, 1), 1u);
    EXPECT_EQ(c.remap(removed, 2, 2), 0u);
    EXPECT_EQ(c.remap(removed, 2, 3), 2u);
    EXPECT_EQ(c.remap(removed, 2, 4), 3u);
    EXPECT_EQ(c.remap(removed, 2, 5), 0u);
    EXPECT_EQ(c.remap(removed, 2, 6), 4u);
    const unsigned long unsorted[] = {5, 2};
    EXPECT_EQ(c.remap(unsorted, 2, 6), 4u);
    EXPECT_EQ(c.remap(removed, 0, 6), 6u);
}

TEST(AccelerogramCollTest, DelAccelerogramRemovesTheSelectedAndKeepsOrder) {
    AccelerogramColl some = Lettered("ABCDE");
    some.Select(2, 300); // a view beyond one byte
    some.Select(4, 300);
    some.Select(3, 44); // another view: stays
    EXPECT_EQ(some.CountSelected(44), 1u);
    EXPECT_EQ(some.DelAccelerogram(300), 0);
    EXPECT_EQ(Names(some), (std::vector<CString>{"A", "C", "E"}));
    EXPECT_TRUE(some.GetAccelerogram(2).IsSelected(44));

    AccelerogramColl all = Lettered("ABC");
    for (unsigned long i = 1; i <= 3; ++i) {
        all.Select(i, 7);
    }
    EXPECT_EQ(all.CountSelected(7), 3u);
    EXPECT_EQ(all.DelAccelerogram(7), 0);
    EXPECT_EQ(all.GetAccelerogramNum(), 0u);
    EXPECT_EQ(all.GetPAccelerograms(), nullptr);

    AccelerogramColl none = Lettered("ABC");
    none.Select(1, 8);
    EXPECT_EQ(none.DelAccelerogram(7), 0);
    EXPECT_EQ(Names(none), (std::vector<CString>{"A", "B", "C"}));

    none.UnSelectAll(8);
    EXPECT_EQ(none.CountSelected(8), 0u);
}

TEST(AccelerogramCollTest, FindersCompareTheirOwnFieldExactly) {
    AccelerogramColl c;
    Accelerogram a;
    a.SetName("Alpha");
    a.Identifier = "beta";
    a.FileIdentifier = "gamma.ASC";
    Accelerogram b;
    b.SetName("beta");
    b.Identifier = "Alpha";
    b.FileIdentifier = "beta.ASC";
    c.AddAccelerogram(a);
    c.AddAccelerogram(b);
    c.AddAccelerogram(b);

    EXPECT_EQ(c.FindAccelerogramName("Alpha"), 1u);
    EXPECT_EQ(c.FindAccelerogramName("alpha"), 0u);
    EXPECT_EQ(c.FindAccelerogramName("beta"), 2u); // the first of two
    EXPECT_EQ(c.FindAccelerogramId("Alpha"), 2u);
    EXPECT_EQ(c.FindAccelerogramId("BETA"), 0u);
    EXPECT_EQ(c.FindAccelerogramFileId("gamma.ASC"), 1u);
    EXPECT_EQ(c.FindAccelerogramFileId("gamma.asc"), 0u);
    EXPECT_EQ(c.FindAccelerogramFileId("beta"), 0u);
}

TEST(AccelerogramCollTest, IndexingRefusesNumbersOutsideTheCollection) {
    AccelerogramColl c = Lettered("AB");
    EXPECT_EQ(c[1].GetName(), "B");
    try {
        c[2];
        ADD_FAILURE() << "no Range for index 2";
    } catch (const AccelerogramColl::Range& e) {
        EXPECT_EQ(e.Index, 2u);
    }
    try {
        c[0x100000005ul];
        ADD_FAILURE() << "no Range for a wide index";
    } catch (const AccelerogramColl::Range& e) {
        EXPECT_EQ(e.Index, 0xFFFFFFFFu);
    }
    AccelerogramColl empty;
    EXPECT_THROW(empty[0], AccelerogramColl::Range);

    EXPECT_EQ(c.GetP(0), nullptr);
    EXPECT_EQ(c.GetP(3), nullptr);
    EXPECT_EQ(c.GetP(2), c.GetPAccelerograms() + 1);
    c.Select(0, 1);
    c.Select(3, 1);
    EXPECT_EQ(c.CountSelected(1), 0u);
    c.Select(2, 1);
    c.Unselect(3, 1);
    c.Unselect(0, 1);
    EXPECT_EQ(c.CountSelected(1), 1u);
    EXPECT_EQ(c.RemoveAccelerogram(0), 1);
    EXPECT_EQ(c.RemoveAccelerogram(3), 1);
    EXPECT_EQ(Names(c), (std::vector<CString>{"A", "B"}));
}

TEST(AccelerogramCollTest, CopiesAreDeepAndResizingKeepsTheLeadingRecords) {
    AccelerogramColl c = Lettered("ABCD");
    EXPECT_EQ(c.RemoveAccelerogram(2), 0);
    EXPECT_EQ(Names(c), (std::vector<CString>{"A", "C", "D"}));

    AccelerogramColl copy(c);
    copy[0].SetName("changed");
    EXPECT_EQ(c[0].GetName(), "A");

    AccelerogramColl assigned = Lettered("XYZW");
    const AccelerogramColl result = (assigned = c);
    EXPECT_EQ(Names(assigned), Names(c));
    EXPECT_EQ(Names(result), Names(c));
    EXPECT_NE(assigned.GetPAccelerograms(), c.GetPAccelerograms());
    assigned = assigned;
    EXPECT_EQ(Names(assigned), Names(c));

    c += c; // appends copies of itself, once
    EXPECT_EQ(Names(c), (std::vector<CString>{"A", "C", "D", "A", "C", "D"}));
    c.AddAccelerogram(c[0]);
    EXPECT_EQ(c.GetAccelerogramNum(), 7u);
    EXPECT_EQ(c[6].GetName(), "A");

    EXPECT_EQ(c.IncreaseStruct(2), 0);
    EXPECT_EQ(Names(c), (std::vector<CString>{"A", "C"}));
    EXPECT_EQ(c.IncreaseStruct(4), 0);
    ASSERT_EQ(c.GetAccelerogramNum(), 4u);
    EXPECT_EQ(c[1].GetName(), "C");
    EXPECT_EQ(c[3].Identifier, "Unknown"); // a default record

    c.Alloc(3);
    EXPECT_EQ(c.GetAccelerogramNum(), 3u);
    EXPECT_EQ(c[0].GetName(), "");
    c.Free();
    EXPECT_EQ(c.GetAccelerogramNum(), 0u);
    EXPECT_EQ(c.GetPAccelerograms(), nullptr);

    EXPECT_STREQ(c.GetRuntimeClass()->m_lpszClassName, "AccelerogramColl");
    EXPECT_EQ(c.GetRuntimeClass()->m_wSchema, 0u);
    CObject* made = CRuntimeClass::CreateObject("AccelerogramColl");
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(AccelerogramColl)));
    delete made;
}

// ---- multi-file import (these read real files through the importers) ----

TEST(AccelerogramCollTest, ImportAsksAboutAFileNameAlreadyInTheSet) {
    TempDir dir;
    const CString first(dir.Write("a/rec.ASC", ItacaText()));
    const CString again(dir.Write("b/rec.ASC", ItacaText()));
    const CString other(dir.Write("a/other.ASC", ItacaText()));
    const std::string question =
        "The accelerogram rec.ASC is already in the set and will NOT be added. Exit?";

    {
        // No: the duplicate is skipped, the import goes on, and it still counts.
        ScriptedUserInterface ui;
        ScopedUserInterface installed(ui);
        ui.QueueFiles({first, again, other});
        ui.QueueAnswer(IDNO);
        ProgressRecorder progress;
        progress.SetRange32(0, 100);
        progress.SetStep(10);
        progress.SetPos(50);
        progress.states.clear();

        AccelerogramColl c;
        EXPECT_EQ(c.ReadFromFile(1, &progress), 0);
        EXPECT_EQ(ShownMessages(ui),
                  (std::vector<Shown>{{question, MB_YESNO},
                                      {"3 accelerograms correctly read.", MB_ICONINFORMATION}}));
        ASSERT_EQ(c.GetAccelerogramNum(), 2u);
        EXPECT_EQ(c[0].FileIdentifier, "rec.ASC");
        EXPECT_EQ(c[1].FileIdentifier, "other.ASC");
        EXPECT_EQ(c[0].Record[1].GetY(), 981.0); // 98.1 cm/s^2

        using State = ProgressRecorder::State;
        EXPECT_EQ(progress.states, (std::vector<State>{{0, 3, 3}, // range (position clamped)
                                                       {0, 3, 0},
                                                       {0, 3, 1},
                                                       {0, 3, 2},
                                                       {0, 3, 3},
                                                       {0, 3, 0}}));
        EXPECT_EQ(ui.WaitCount(), 1);
        EXPECT_EQ(ui.WaitDepth(), 0);

        ASSERT_EQ(ui.FileRequests().size(), 1u);
        const seisplot::FileRequest& request = ui.FileRequests()[0];
        EXPECT_TRUE(request.open);
        EXPECT_TRUE(request.multiSelect);
        EXPECT_EQ(request.defaultExtension, "*.txt; *.plt");
        EXPECT_EQ(request.filter,
                  "ITACA Ascii ASC (*.asc)|*.asc|Ascii TXT (*.txt)|*.txt|ITACA Ascii ASC "
                  "(*.RA)|*.RA|ITACA Ascii ASC (*.TR)|*.TR|ITACA Ascii ASC (*.UP)|*.UP|Ascii "
                  "PLT (*.plt)|*.plt|All file extensions (*.*)|*.*||");
        EXPECT_EQ(request.flags,
                  OFN_ALLOWMULTISELECT | OFN_EXPLORER | OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT);
        EXPECT_EQ(ui.Unanswered(), 0);
    }
    {
        // Yes: the import ends there, without the closing message.
        ScriptedUserInterface ui;
        ScopedUserInterface installed(ui);
        ui.QueueFiles({first, again, other});
        ui.QueueAnswer(IDYES);
        AccelerogramColl c;
        EXPECT_EQ(c.ReadFromFile(1, nullptr), 1);
        EXPECT_EQ(ShownMessages(ui), (std::vector<Shown>{{question, MB_YESNO}}));
        EXPECT_EQ(c.GetAccelerogramNum(), 1u);
        EXPECT_EQ(ui.WaitDepth(), 0);
    }
}

TEST(AccelerogramCollTest, ImportAsksForTwoColumnUnitsOnce) {
    TempDir dir;
    const CString one(dir.Write("one.txt", "% t a\n0.0 981.0\n0.01 -98.1\n"));
    const CString two(dir.Write("two.PLT", "0.0 0.0\n0.02 490.5\n"));
    ScriptedUserInterface ui;
    ScopedUserInterface installed(ui);
    ui.QueueFiles({one, two});
    ui.QueueUnits({true, {{"Length", "cm"}}});

    AccelerogramColl c;
    EXPECT_EQ(c.ReadFromFile(1, nullptr), 0);
    EXPECT_EQ(ShownMessages(ui),
              (std::vector<Shown>{
                  {"Set the units to be used to read from file", MB_OK},
                  {"Warning, to set units only once, it is assumed that all the .txt and .plt "
                   "files do have the same units!",
                   MB_ICONEXCLAMATION},
                  {"2 accelerograms correctly read.", MB_ICONINFORMATION}}));
    EXPECT_EQ(ui.UnitQuestions().size(), 1u);
    EXPECT_EQ(ui.Unanswered(), 0);
    // Both files were read in cm/s^2: 981 cm/s^2 = 9810 mm/s^2, 490.5 cm/s^2 = 4905 mm/s^2.
    ASSERT_EQ(c.GetAccelerogramNum(), 2u);
    EXPECT_EQ(c[0].Record[0].GetY(), 9810.0);
    EXPECT_EQ(c[1].Record[1].GetY(), 4905.0);
    EXPECT_EQ(c[1].FileIdentifier, "two.PLT");
}

TEST(AccelerogramCollTest, ImportStopsAtAFileItCannotRead) {
    TempDir dir;
    const CString good(dir.Write("good.ASC", ItacaText()));
    const CString unknown(dir.Write("notes.dat", "0.0 1.0\n"));
    const CString later(dir.Write("later.ASC", ItacaText()));
    {
        ScriptedUserInterface ui;
        ScopedUserInterface installed(ui);
        ui.QueueFiles({good, unknown, later});
        AccelerogramColl c;
        EXPECT_EQ(c.ReadFromFile(1, nullptr), 1);
        const std::string refused = "Unable to read file " + unknown.str() + ". No acc added.";
        EXPECT_EQ(ShownMessages(ui),
                  (std::vector<Shown>{{"Unrecognized file extension", MB_OK}, {refused, MB_OK}}));
        ASSERT_EQ(c.GetAccelerogramNum(), 1u); // what was read before stays
        EXPECT_EQ(c[0].FileIdentifier, "good.ASC");
    }
    {
        // The reader's own message comes first, then the import's.
        const CString headerOnly(dir.Write("empty.RA", "EVENT_NAME: x\nNDATA: 3\n"));
        ScriptedUserInterface ui;
        ScopedUserInterface installed(ui);
        ui.QueueFiles({good, headerOnly});
        AccelerogramColl c;
        EXPECT_EQ(c.ReadFromFile(1, nullptr), 1);
        const std::string review =
            "Unable to read file " + headerOnly.str() + ". Review it. No acc added.";
        EXPECT_EQ(ShownMessages(ui),
                  (std::vector<Shown>{{"Error no data read. First datum MUST be 0.000", MB_OK},
                                      {review, MB_OK}}));
        EXPECT_EQ(c.GetAccelerogramNum(), 1u);
    }
    {
        ScriptedUserInterface ui;
        ScopedUserInterface installed(ui);
        ui.QueueCancelFiles();
        ProgressRecorder progress;
        AccelerogramColl c;
        EXPECT_EQ(c.ReadFromFile(0, &progress), 1);
        EXPECT_TRUE(ui.Messages().empty());
        EXPECT_TRUE(progress.states.empty());
    }
}
