// Links of shadows and scan marks on their complete way: into the page, through a check, to a radio and back.
#include "catalogue/TextNumbers.h"
#include "commands/CommandIds.h"
#include "files/ZelkFile_OpenSave.h"
#include "robot/Files.h"
#include "robot/Pump.h"
#include "tests/support/Keys.h"
#include "tests/support/Places.h"
#include "tests/transfer/RadioUnderTest.h"
#include "tests/transfer/TRecordDriverTest.h"

#include <wx/menu.h>
#include <wx/notebook.h>

using namespace testbench;
using namespace transfertest;

namespace {

class DigitalLinks : public TRecordDriverTest {
protected:
    void SetUp() override {
        TRecordDriverTest::SetUp();
        ShowAndFocus(*MainFrame);
        RadioStamp = "20200101000000"; // as if the radio had been read last, so nothing is purged
    }

    /// Chooses a command of the menus.
    static void Choose(int command) {
        wxMenu* menu = nullptr;
        ASSERT_NE(MainFrame->GetMenuBar()->FindItem(command, &menu), nullptr);
        menu->SendEvent(command);
        PumpUntilIdle();
    }

    static void OpenByMenu(const std::string& path) {
        DialogScript script;
        script.ExpectMessage("Open File?", "This will overwrite all data on this page! Continue?")
            .Style(wxOK | wxCANCEL);
        script.ExpectFile("Select Zelk file", path);
        Choose(IdOpen);
    }

    static void ImportByMenu(const std::string& path, const char* box) {
        DialogScript script;
        script.ExpectFile("Import file", path);
        script.ExpectMessage("Import File", box).Style(wxOK | wxCENTRE | wxICON_INFORMATION);
        Choose(IdImport);
    }

    static void ValidateByMenu() {
        DialogScript script;
        script.ExpectMessage("Validate Page", "Validate row data");
        Choose(IdValidatePage);
    }

    /// Sends the complete page and reads it back.
    static void SendAllAndReadBack(RadioUnderTest& radio) {
        Choose(IdSelectAll);
        OpModes[0] = AllModes;
        PortName = radio.PortName();
        DialogScript script;
        ExpectBox(script, "Write to Radio Status", "Complete");
        Choose(IdUpload);
        radio.AwaitClosedPort();
        ExpectQuestion(script);
        ExpectBox(script, "Read from Radio Status", "Complete");
        Choose(IdDownload);
        ExpectOver();
        radio.AwaitClosedPort();
        EXPECT_EQ(radio.Complaints(), "");
    }

    using Texts = std::vector<std::string>;

    /// SHAD, MFLG and SHD0 to SHD6 of each row with data, numbers as numbers.
    static std::map<int, Texts> LinksOfPage() {
        std::map<int, Texts> links;
        for (int row = 1; row <= CurrentParameters().Rows; ++row) {
            if (!RowHasData(row))
                continue;
            links[row] = {CellText(row, SHAD), CellText(row, MFLG)};
            for (int column = SHD0; column <= SHD6; ++column)
                links[row].push_back(std::to_string(ReadDecimal(Cell(row, column))));
        }
        return links;
    }

    static std::string Path(const std::string& name, const std::string& bytes) {
        const auto path = std::filesystem::current_path() / name;
        WriteFile(path, bytes);
        return path.string();
    }

    static void ExpectLinksSurvive(const std::string& file, const std::string& model,
                                   const std::vector<std::string>& options) {
        SCOPED_TRACE(file + " to " + model + (options.empty() ? "" : " " + options.back()));
        OpenByMenu(Path(file, ReadFile(ExamplesFolder() + "/" + file)));
        ValidateByMenu();
        const std::map<int, Texts> before = LinksOfPage();
        ASSERT_EQ(CellText(32, SHAD), "S-031") << "the example has lost its shadows";
        ASSERT_EQ(CellText(32, PRIM), "032") << "the check lets a shadow name itself";
        RadioUnderTest radio(model, options);
        SendAllAndReadBack(radio);
        std::map<int, Texts> after = LinksOfPage();
        EXPECT_EQ(after.size(), before.size());
        for (const auto& [row, links] : before)
            EXPECT_EQ(after[row], links) << row;
        EXPECT_EQ(CellText(31, SHAD), "P-3");
        EXPECT_EQ(CellText(35, SHAD), "P-2");
        EXPECT_EQ(ReadDecimal(Cell(32, PRIM)), 31);
    }

    /// Chooses "Y" or "N" in SCAN by keyboard.
    static void ChooseScan(int row, const std::string& letter) {
        CurrentGrid()->GoToCell(row, SCAN);
        CurrentGrid()->SetFocus();
        PumpUntilIdle();
        PressKey("F2");
        PressKey(letter == "Y" ? "Up" : "Down");
        PressKey("Return");
        ASSERT_EQ(CellText(row, SCAN), letter) << row;
    }

    static Texts ScansOf(std::initializer_list<int> rows) {
        Texts scans;
        for (const int row : rows)
            scans.push_back(CellText(row, SCAN));
        return scans;
    }
};

} // namespace

TEST_F(DigitalLinks, OfAnOpenedAndValidatedFileAreThereAfterSendingAndReading) {
    ExpectLinksSurvive("kdrv-716b-p25.zelk", "KDRV-716B", {});
}

TEST_F(DigitalLinks, OfAnOpenedAndValidatedFileAreThereAfterSendingInTheOldLayout) {
    ExpectLinksSurvive("kdrv-716b-p25.zelk", "KDRV-716B", {"--firmware", "010203"});
    UsePage(Kdrv716);
    RadioStamp = "20200101000000";
    ExpectLinksSurvive("kdrv-716-p25.zelk", "KDRV-716", {});
}

TEST_F(DigitalLinks, ZonesOfTheSecondGenerationReachTheRadioBesideAPageOfTheFirst) {
    const Texts zones = {"1", "16", "A", "C", "E", "F", "H", "I", "K",
                         "L", "M",  "N", "P", "T", "U", "V", "W", "X"};
    std::map<int, std::string> sent;
    for (const std::string& zone : zones) {
        const int row = static_cast<int>(sent.size()) + 1;
        FillP25Row(row, "A0", "00", wxString::Format("%03d", row));
        SetCell(row, ZONE, zone);
        sent[row] = zone;
    }
    SetPageParameters(MainFrame, 1, Kdrv716, 0);
    CreateNewPage(MainFrame, 1);
    MainFrame->m_notebook->SetSelection(0);
    PumpUntilIdle();
    ASSERT_EQ(CurrentPage, 0);
    RadioUnderTest radio("KDRV-716B");
    SendAllAndReadBack(radio);
    for (const auto& [row, zone] : sent)
        EXPECT_EQ(CellText(row, ZONE), zone) << row;
    const auto records = radio.Records();
    ASSERT_EQ(records.size(), sent.size() + 1) << "with the default row";
    const Texts words = {"0000", "00F0", "0100", "0110", "0120", "0130", "0140", "0150", "0160",
                         "0170", "0180", "0190", "01A0", "01B0", "01C0", "01D0", "01E0", "01F0"};
    for (size_t i = 0; i < words.size(); ++i)
        EXPECT_EQ(records.at(static_cast<int>(i) + 1).substr(22, 4), words[i]) << zones[i];
}

TEST_F(DigitalLinks, ScanThatIsTypedReachesTheRadioAndSoDoesItsEnd) {
    for (const int row : {1, 2, 3})
        FillP25Row(row, "A0", "00", wxString::Format("%03d", row));
    SetCell(3, MFLG, "08");
    SetCell(3, SCAN, "Y");
    SetPageEditors(0);
    ChooseScan(2, "Y");
    ChooseScan(3, "N");
    RadioUnderTest radio("KDRV-716B");
    SendAllAndReadBack(radio);
    EXPECT_EQ(ScansOf({1, 2, 3}), (Texts{"N", "Y", "N"}));
    EXPECT_EQ((Texts{CellText(1, MFLG), CellText(2, MFLG), CellText(3, MFLG)}), (Texts{"00", "08", "00"}));
}

TEST_F(DigitalLinks, ScanFromAChannelFileReachesTheRadio) {
    FillP25Row(4, "A0", "00", "004");
    FillP25Row(5, "A0", "08", "005");
    SetCell(4, SCAN, "Y");
    SetCell(5, SCAN, "N");
    PageStrings[0].FileDir = std::filesystem::current_path().string() + "/";
    PageStrings[0].FileName = "scan";
    SaveZelkFile(0, false);
    UsePage(Kdrv716B);
    OpenByMenu((std::filesystem::current_path() / "scan.zelk").string());
    ASSERT_EQ(ScansOf({4, 5}), (Texts{"Y", "N"}));
    RadioUnderTest radio("KDRV-716B", {"--firmware", "010203"});
    SendAllAndReadBack(radio);
    EXPECT_EQ(ScansOf({4, 5}), (Texts{"Y", "N"}));
}

TEST_F(DigitalLinks, ScanFromAListReachesTheRadio) {
    const std::string list = Path("scan.csv", "MNUM,SCAN,DESC,MODE,RFRQ,TFRQ\n6,Y,ONE,n,155.1,155.1\n"
                                              "7,N,TWO,n,155.2,155.2\n8,1,THREE,n,155.3,155.3\n");
    ImportByMenu(list, "Imported 3 Lines from CSV file.");
    ASSERT_EQ(ScansOf({6, 7, 8}), (Texts{"Y", "N", "Y"}));
    RadioUnderTest radio("KDRV-716B");
    SendAllAndReadBack(radio);
    EXPECT_EQ(ScansOf({6, 7, 8}), (Texts{"Y", "N", "Y"}));
}
