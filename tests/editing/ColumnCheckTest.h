// Results of a column's check, on a page of each of the eight radio types.
#pragma once

#include "editing/ColumnChecks.h"
#include "tests/catalogue/PageTest.h"

#include <string>
#include <vector>

enum Page { Anfm, Rp25, Np25, Mdlx, O12Page, KdarPage, Anam, Fxam };
using Pages = std::vector<Page>;

inline const Pages AllPages{Anfm, Rp25, Np25, Mdlx, O12Page, KdarPage, Anam, Fxam};
inline const Pages P25Pages{Rp25, Np25};
inline const Pages AnalogPages{Anfm, Mdlx, O12Page, KdarPage, Anam, Fxam};
inline const Pages MaskPages{Anfm, Mdlx, O12Page, Anam, Fxam};

/// A text for the check of a column, in row 5; the default row holds "dflt".
struct Case {
    std::vector<int> columns;
    const char* text;
    const char* expected;
    bool painted = false;
    const char* squelch = "";
    int withColumn = -1; ///< a cell of the row that the check looks at, and its text
    const char* withText = "";
};

constexpr bool Painted = true;
constexpr bool Plain = false;

class ColumnCheckTest : public PageTest {
protected:
    static constexpr int row = 5;

    static void Become(Page page) {
        static constexpr int targets[][2] = {{Krv47, 0}, {Kdrv716, 0},  {Kdrv716B, 0}, {Kdrv4xxx, ModuleSlot},
                                             {Orv12, 0}, {Kdar2000, 0}, {Krv620, 1},   {Krv47, 0}};
        Retarget(targets[page][0], targets[page][1]);
        if (page == Fxam) // no radio has this type, but files may
            CurrentParameters().Type = RadioCatalogue::FXAM;
        ASSERT_EQ(CurrentParameters().Type, page);
    }

    static void Check(int column, const wxString& text, const wxString& squelch) {
        wxGrid* grid = CurrentGrid();
        switch (column) {
        case MNUM:
            CheckMNum(grid, row, text);
            break;
        case PRIM:
            CheckPrim(grid, row, text);
            break;
        case SHAD:
            CheckShad(grid, row, text);
            break;
        case BAND:
            CheckBand(grid, row, text);
            break;
        case SCAN:
            CheckScan(grid, row, text);
            break;
        case ZONE:
            CheckZone(grid, row, text);
            break;
        case DESC:
            CheckDesc(grid, row, text);
            break;
        case MODE:
            CheckMode(grid, row, text);
            break;
        case RFRQ:
        case TFRQ:
            CheckFreq(grid, row, column, text);
            break;
        case RSQL:
        case TSQL:
            CheckSquelch(grid, row, column, text);
            break;
        case RNSV:
            CheckRnsv(grid, row, text);
            break;
        case RTON:
        case TTON:
            CheckTone(grid, row, column, text, squelch);
            break;
        case RCOD:
        case TCOD:
            CheckCode(grid, row, column, text, squelch);
            break;
        case RTGP:
        case TTGP:
            CheckTalkGroup(grid, row, column, text);
            break;
        case RNAC:
        case TNAC:
            CheckNac(grid, row, column, text);
            break;
        case TIDC:
            CheckTidc(grid, row, text);
            break;
        case RONL:
            CheckRonl(grid, row, text);
            break;
        default:
            FAIL() << "no check for column " << column;
        }
    }

    static bool IsPainted(int column, int ofRow = row) {
        return CurrentGrid()->GetCellBackgroundColour(ofRow, column) == wxColour(235, 125, 50);
    }

    /// Empties the row except for the column, which holds "before" and has the default "dflt".
    static void PrepareRow(int column) {
        for (int col = 0; col < 32; ++col)
            SetCell(row, col, "");
        SetCell(0, column, "dflt");
        SetCell(row, column, "before");
        CurrentGrid()->SetCellBackgroundColour(row, column, CurrentGrid()->GetDefaultCellBackgroundColour());
    }

    static void Expect(const Case& c, int column) {
        PrepareRow(column);
        if (c.withColumn >= 0)
            SetCell(row, c.withColumn, c.withText);
        const wxString text = wxString::FromUTF8(c.text);
        Check(column, text, c.squelch);
        const std::string what = std::string("page ") +
                                 RadioCatalogue::RadioTypeName[CurrentParameters().Type] + ", " +
                                 ColumnTag[column] + " \"" + c.text + "\"";
        EXPECT_EQ(Cell(row, column).utf8_string(), c.expected) << what;
        EXPECT_EQ(IsPainted(column), c.painted) << what;
    }

    static void ExpectAll(const Pages& pages, const std::vector<Case>& cases) {
        for (Page page : pages) {
            Become(page);
            for (const Case& c : cases)
                for (int column : c.columns)
                    Expect(c, column);
        }
    }
};
