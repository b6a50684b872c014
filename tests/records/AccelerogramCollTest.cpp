// The record collection. Its container (shared with the spectrum collection) is tested here
// in full; the spectrum collection's tests cover only what differs.

#include "records/AccelerogramColl.h"

#include "platform/core/CFileDialog.h"
#include "platform/core/ScriptedUserInterface.h"
#include "support/ArchiveBytes.h"
#include "support/ProgressRecorder.h"
#include "support/SampledRecord.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

using seisplot::ScopedUserInterface;
using seisplot::ScriptedUserInterface;
using namespace seisplot::test;

namespace {

using Names = std::vector<CString>;

Names NamesOf(const AccelerogramColl& c) {
    Names names;
    for (unsigned long i = 1; i <= c.GetAccelerogramNum(); ++i) {
        names.push_back(c.GetAccelerogram(i).GetName());
    }
    return names;
}

Accelerogram Named(const char* name, const char* id = "Unknown", const char* file = "") {
    Accelerogram r;
    r.SetName(name);
    r.Identifier = id;
    r.FileIdentifier = file;
    return r;
}

AccelerogramColl Lettered(const char* letters) {
    AccelerogramColl c;
    for (const char* p = letters; *p; ++p) {
        c.AddAccelerogram(Named(CString(*p)));
    }
    return c;
}

// The index that c[i] reports in its Range exception; -1 when it raises none.
long long RangeIndex(AccelerogramColl& c, unsigned long i) {
    try {
        c[i];
    } catch (const AccelerogramColl::Range& e) {
        return e.Index;
    }
    return -1;
}

// An ITACA file of three samples in cm/s^2 at 0.01 s.
const std::string kItaca =
    "STREAM: HNE\nNDATA: 3\nSAMPLING_INTERVAL_S: 0.01\nUNITS: cm/s^2\n0.000\n98.1\n-196.2\n";

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

TEST(AccelerogramCollTest, AccFileIsWordOneTheCountAndEachRecordsOwnForm) {
    TempDir dir;
    CString emptyPath(dir.Path("empty.acc"));
    AccelerogramColl empty;
    EXPECT_EQ(empty.WriteToFile(emptyPath), 0);
    EXPECT_EQ(FileBytes(emptyPath.str()), (Bytes{0x01, 0x00, 0x00, 0x00, 0x00, 0x00}));
    AccelerogramColl back = Lettered("xy");
    EXPECT_EQ(back.ReadFromFile(emptyPath), 0);
    EXPECT_EQ(back.GetPAccelerograms(), nullptr);

    CString path(dir.Path("two.acc"));
    AccelerogramColl c;
    Accelerogram first = Named("first", "first id", "first.ASC");
    first.Record = RecordOf({1.5, -3.75, 0.125}).Record;
    first.Select(300);
    first.Mw = 6.5;
    Accelerogram second = Named("second", "second id", "second.ASC");
    second.Record = RecordOf({-3.25, 8.125}).Record;
    c.AddAccelerogram(first);
    c.AddAccelerogram(second);
    ASSERT_EQ(c.WriteToFile(path), 0);
    const Bytes bytes = FileBytes(path.str());
    StreamBuilder expected;
    expected.Word(1).Dword(2).Append(StoreObject(first)).Append(StoreObject(second));
    EXPECT_EQ(bytes, expected.bytes());
    // Every archived field, view and sample: each record read back stores the same bytes.
    ASSERT_EQ(back.ReadFromFile(path), 0);
    ASSERT_EQ(back.GetAccelerogramNum(), 2u);
    EXPECT_EQ(StoreObject(back[0]), StoreObject(first));
    EXPECT_EQ(StoreObject(back[1]), StoreObject(second));

    // A missing file raises before anything is replaced; one cut short by a byte ends inside
    // the second record and leaves the collection empty.
    CString missing(dir.Path("missing.acc"));
    EXPECT_EQ(FileCause([&] { back.ReadFromFile(missing); }), CFileException::fileNotFound);
    EXPECT_EQ(back.GetAccelerogramNum(), 2u);
    CString cut(dir.Write("cut.acc", std::string(bytes.begin(), bytes.end() - 1)));
    EXPECT_EQ(ArchiveCause([&] { back.ReadFromFile(cut); }), CArchiveException::endOfFile);
    EXPECT_EQ(back.GetAccelerogramNum(), 0u);
}

TEST(AccelerogramCollTest, StoredCountIsCheckedAgainstTheShortestRecord) {
    // Four billion records claimed in a ten-byte stream fail before anything is allocated.
    AccelerogramColl c = Lettered("abc");
    const Bytes huge = StreamBuilder().Word(1).Dword(4000000000u).Dword(0).bytes();
    EXPECT_EQ(ArchiveCause([&] { LoadObject(huge, c); }), CArchiveException::endOfFile);
    EXPECT_EQ(c.GetAccelerogramNum(), 0u);

    // The check must not refuse the shortest record there is, 24 bytes: an unnamed
    // version-100 record (name, views, version, identifier, explanation), an empty curve.
    PCurve noPoints;
    StreamBuilder shortest;
    shortest.Word(1).Dword(1).Text("").Word(0).Word(100).Text("").Text("");
    shortest.Append(StoreObject(noPoints));
    ASSERT_EQ(shortest.bytes().size(), 6u + 24u);
    EXPECT_EQ(LoadObject(shortest.bytes(), c), 0u);
    EXPECT_EQ(c.GetAccelerogramNum(), 1u);
}

// ---- container ----

TEST(AccelerogramCollTest, RemapRenumbersAroundTheRemovedRecords) {
    AccelerogramColl c;
    const unsigned long removed[] = {2, 5};
    const unsigned long unsorted[] = {5, 2};
    const unsigned long renumbered[] = {1, 0, 2, 3, 0, 4}; // for 1 ... 6
    for (unsigned long i = 1; i <= 6; ++i) {
        EXPECT_EQ(c.remap(removed, 2, i), renumbered[i - 1]) << i;
        EXPECT_EQ(c.remap(unsorted, 2, i), renumbered[i - 1]) << i;
    }
    EXPECT_EQ(c.remap(removed, 0, 6), 6u);
}

TEST(AccelerogramCollTest, SelectionByViewAndDeletionOfTheSelected) {
    AccelerogramColl some = Lettered("ABCDE");
    some.Select(2, 300); // a view beyond one byte
    some.Select(4, 300);
    some.Select(3, 44); // another view: stays
    some.Select(5, 44);
    some.Unselect(5, 44);
    some.Select(0, 44); // numbers outside 1 ... count do nothing
    some.Select(6, 44);
    EXPECT_EQ(some.CountSelected(44), 1u);
    EXPECT_EQ(some.DelAccelerogram(300), 0);
    EXPECT_EQ(NamesOf(some), (Names{"A", "C", "E"}));
    EXPECT_TRUE(some.GetAccelerogram(2).IsSelected(44));
    some.UnSelectAll(44);
    EXPECT_EQ(some.CountSelected(44), 0u);

    AccelerogramColl all = Lettered("ABC");
    for (unsigned long i = 1; i <= 3; ++i) {
        all.Select(i, 7);
    }
    EXPECT_EQ(all.DelAccelerogram(7), 0);
    EXPECT_EQ(all.GetPAccelerograms(), nullptr);

    AccelerogramColl none = Lettered("ABC");
    none.Select(1, 8);
    EXPECT_EQ(none.DelAccelerogram(7), 0);
    EXPECT_EQ(NamesOf(none), (Names{"A", "B", "C"}));
}

TEST(AccelerogramCollTest, IndexingAndFindersCountFromTheirOwnBase) {
    AccelerogramColl c;
    c.AddAccelerogram(Named("Alpha", "beta", "gamma.ASC"));
    c.AddAccelerogram(Named("beta", "Alpha", "beta.ASC"));
    c.AddAccelerogram(Named("beta", "Alpha", "beta.ASC"));
    // Finders count from 1, compare their own field exactly, and return the first match.
    EXPECT_EQ(c.FindAccelerogramName("Alpha"), 1u);
    EXPECT_EQ(c.FindAccelerogramName("alpha"), 0u);
    EXPECT_EQ(c.FindAccelerogramName("beta"), 2u);
    EXPECT_EQ(c.FindAccelerogramId("Alpha"), 2u);
    EXPECT_EQ(c.FindAccelerogramId("BETA"), 0u);
    EXPECT_EQ(c.FindAccelerogramFileId("gamma.ASC"), 1u);
    EXPECT_EQ(c.FindAccelerogramFileId("gamma.asc"), 0u);
    EXPECT_EQ(c.FindAccelerogramFileId("beta"), 0u);

    // [] counts from 0 and raises Range with the index, or 0xFFFFFFFF for one wider than 32
    // bits; GetP counts from 1 and gives null outside.
    EXPECT_EQ(c[2].GetName(), "beta");
    EXPECT_EQ(RangeIndex(c, 2), -1);
    EXPECT_EQ(RangeIndex(c, 3), 3);
    EXPECT_EQ(RangeIndex(c, 0x100000005ul), 0xFFFFFFFF);
    AccelerogramColl empty;
    EXPECT_EQ(RangeIndex(empty, 0), 0);
    EXPECT_EQ(c.GetP(0), nullptr);
    EXPECT_EQ(c.GetP(4), nullptr);
    EXPECT_EQ(c.GetP(3), c.GetPAccelerograms() + 2);
}

TEST(AccelerogramCollTest, AddRemoveCopyAndResize) {
    AccelerogramColl c = Lettered("ABCD");
    EXPECT_EQ(c.RemoveAccelerogram(2), 0);
    EXPECT_EQ(c.RemoveAccelerogram(0), 1);
    EXPECT_EQ(c.RemoveAccelerogram(4), 1);
    EXPECT_EQ(NamesOf(c), (Names{"A", "C", "D"}));

    AccelerogramColl copy(c);
    copy[0].SetName("changed");
    EXPECT_EQ(c[0].GetName(), "A");
    AccelerogramColl assigned = Lettered("XYZW");
    const AccelerogramColl result = (assigned = c);
    EXPECT_EQ(NamesOf(assigned), NamesOf(c));
    EXPECT_EQ(NamesOf(result), NamesOf(c));
    EXPECT_NE(assigned.GetPAccelerograms(), c.GetPAccelerograms());
    assigned = assigned;
    EXPECT_EQ(NamesOf(assigned), NamesOf(c));

    c += c; // appends copies of itself, once
    c.AddAccelerogram(c[0]);
    EXPECT_EQ(NamesOf(c), (Names{"A", "C", "D", "A", "C", "D", "A"}));

    // Resizing keeps the leading records and appends default ones.
    EXPECT_EQ(c.IncreaseStruct(2), 0);
    EXPECT_EQ(c.IncreaseStruct(4), 0);
    ASSERT_EQ(c.GetAccelerogramNum(), 4u);
    EXPECT_EQ(c[1].GetName(), "C");
    EXPECT_EQ(c[3].Identifier, "Unknown");
    c.Alloc(3);
    EXPECT_EQ(NamesOf(c), (Names{"", "", ""}));
    c.Free();
    EXPECT_EQ(c.GetPAccelerograms(), nullptr);

    EXPECT_EQ(c.GetRuntimeClass()->m_wSchema, 0u);
    CObject* made = CRuntimeClass::CreateObject("AccelerogramColl");
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(AccelerogramColl)));
    delete made;
}

// ---- multi-file import (these read real files through the importers) ----

TEST(AccelerogramCollTest, ImportSkipsOrStopsAtADuplicateAndAsksForUnitsOnce) {
    TempDir dir;
    const CString first(dir.Write("a/rec.ASC", kItaca));
    const CString again(dir.Write("b/rec.ASC", kItaca));
    const CString one(dir.Write("one.txt", "% t a\n0.0 981.0\n0.01 -98.1\n"));
    const CString two(dir.Write("two.PLT", "0.0 0.0\n0.02 490.5\n"));
    const Shown question{
        "The accelerogram rec.ASC is already in the set and will NOT be added. Exit?", MB_YESNO};
    {
        // No: the duplicate is skipped, the import goes on, and it still counts. One choice
        // of units serves both two-column files.
        ScriptedUserInterface ui;
        ScopedUserInterface installed(ui);
        ui.QueueFiles({first, one, again, two});
        ui.QueueAnswer(IDNO);
        ui.QueueUnits({true, {{"Length", "cm"}}});
        ProgressRecorder progress;
        progress.SetRange32(0, 100);
        progress.SetStep(10);
        progress.SetPos(50);
        progress.states.clear();

        AccelerogramColl c;
        EXPECT_EQ(c.ReadFromFile(1, &progress), 0);
        EXPECT_EQ(ShownMessages(ui),
                  (std::vector<Shown>{
                      {"Set the units to be used to read from file", MB_OK},
                      {"Warning, to set units only once, it is assumed that all the .txt and .plt "
                       "files do have the same units!",
                       MB_ICONEXCLAMATION},
                      question,
                      {"4 accelerograms correctly read.", MB_ICONINFORMATION}}));
        EXPECT_EQ(ui.UnitQuestions().size(), 1u);
        EXPECT_EQ(ui.Unanswered(), 0);
        ASSERT_EQ(c.GetAccelerogramNum(), 3u);
        EXPECT_EQ(c[0].FileIdentifier, "rec.ASC");
        EXPECT_EQ(c[2].FileIdentifier, "two.PLT");
        // 98.1 cm/s^2 = 981 mm/s^2 in the ITACA file; 981 and 490.5 cm/s^2 in the others.
        EXPECT_EQ(c[0].Record[1].GetY(), 981.0);
        EXPECT_EQ(c[1].Record[0].GetY(), 9810.0);
        EXPECT_EQ(c[2].Record[1].GetY(), 4905.0);

        // The range (position clamped to it), a step of 1 from 0, one step per file, then 0.
        using State = ProgressRecorder::State;
        EXPECT_EQ(
            progress.states,
            (std::vector<State>{
                {0, 4, 4}, {0, 4, 0}, {0, 4, 1}, {0, 4, 2}, {0, 4, 3}, {0, 4, 4}, {0, 4, 0}}));
        EXPECT_EQ(ui.WaitCount(), 1);
        EXPECT_EQ(ui.WaitDepth(), 0);
        ASSERT_EQ(ui.FileRequests().size(), 1u);
        const seisplot::FileRequest& request = ui.FileRequests()[0];
        EXPECT_TRUE(request.open);
        EXPECT_EQ(request.defaultExtension, "*.txt; *.plt");
        EXPECT_EQ(request.filter,
                  "ITACA Ascii ASC (*.asc)|*.asc|Ascii TXT (*.txt)|*.txt|ITACA Ascii ASC "
                  "(*.RA)|*.RA|ITACA Ascii ASC (*.TR)|*.TR|ITACA Ascii ASC (*.UP)|*.UP|Ascii "
                  "PLT (*.plt)|*.plt|All file extensions (*.*)|*.*||");
        EXPECT_EQ(request.flags,
                  OFN_ALLOWMULTISELECT | OFN_EXPLORER | OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT);
    }
    // Yes: the import ends there, without the closing message.
    ScriptedUserInterface ui;
    ScopedUserInterface installed(ui);
    ui.QueueFiles({first, again, one});
    ui.QueueAnswer(IDYES);
    AccelerogramColl c;
    EXPECT_EQ(c.ReadFromFile(1, nullptr), 1);
    EXPECT_EQ(ShownMessages(ui), (std::vector<Shown>{question}));
    EXPECT_EQ(c.GetAccelerogramNum(), 1u);
    EXPECT_EQ(ui.WaitDepth(), 0);
}

TEST(AccelerogramCollTest, ImportStopsAtAFileItCannotRead) {
    TempDir dir;
    const CString good(dir.Write("good.ASC", kItaca));
    const CString unknown(dir.Write("notes.dat", "0.0 1.0\n"));
    const CString headerOnly(dir.Write("empty.RA", "EVENT_NAME: x\nNDATA: 3\n"));
    const struct {
        CString bad;
        std::vector<Shown> shown;
    } cases[] = {
        {unknown,
         {{"Unrecognized file extension", MB_OK},
          {"Unable to read file " + unknown.str() + ". No acc added.", MB_OK}}},
        // The reader's own message comes first, then the import's.
        {headerOnly,
         {{"Error no data read. First datum MUST be 0.000", MB_OK},
          {"Unable to read file " + headerOnly.str() + ". Review it. No acc added.", MB_OK}}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.bad.str());
        ScriptedUserInterface ui;
        ScopedUserInterface installed(ui);
        ui.QueueFiles({good, c.bad, good});
        AccelerogramColl records;
        EXPECT_EQ(records.ReadFromFile(1, nullptr), 1);
        EXPECT_EQ(ShownMessages(ui), c.shown);
        ASSERT_EQ(records.GetAccelerogramNum(), 1u); // what was read before stays
        EXPECT_EQ(records[0].FileIdentifier, "good.ASC");
    }
    ScriptedUserInterface ui;
    ScopedUserInterface installed(ui);
    ui.QueueCancelFiles();
    ProgressRecorder progress;
    AccelerogramColl c;
    EXPECT_EQ(c.ReadFromFile(0, &progress), 1);
    EXPECT_TRUE(ui.Messages().empty());
    EXPECT_TRUE(progress.states.empty());
}
