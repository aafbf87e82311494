#include "catalogue/CsvTables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

using namespace RadioCatalogue;

namespace {

std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);)
        parts.push_back(part);
    return parts;
}

} // namespace

TEST(CsvTables, HaveTheHeadersAndTheBanner) {
    EXPECT_STREQ(CsvHeader,
                 "MNUM,BAND,SCAN,ZONE,DESC,MODE,RFRQ,RSQL,RNSV,RTON,RCOD,RTGP,RNAC,TFRQ,TSQL,TTON,TCOD,TTGP,"
                 "TNAC,TIDC,");
    EXPECT_STREQ(KdarCsvHeader, "Memory,Name,Receive,Transmit,Scan,Rx Only");
    EXPECT_STREQ(KdarCsvBanner, "KDAR-2000,Purge,,,,");
}

TEST(CsvTables, MarkTheFieldsThatEachTypeHas) {
    struct Fields {
        int type;
        const char* name;
        const char* tags;
    };
    constexpr Fields lines[] = {
        {0, "ANFM", "MNUM SCAN DESC MODE RFRQ RTON RCOD TFRQ TTON TCOD"},
        {1, "RP25",
         "MNUM SCAN ZONE DESC MODE RFRQ RSQL RTON RCOD RTGP RNAC TFRQ TSQL TTON TCOD TTGP TNAC TIDC"},
        {2, "NP25",
         "MNUM SCAN ZONE DESC MODE RFRQ RSQL RNSV RTON RCOD RTGP RNAC TFRQ TSQL TTON TCOD TTGP TNAC TIDC"},
        {3, "MDLX", "MNUM BAND SCAN DESC MODE RFRQ RTON RCOD TFRQ TTON TCOD"},
        {4, "O12", "MNUM RFRQ"},
        {5, "KDAR", "MNUM SCAN DESC RFRQ TFRQ"},
        {6, "ANAM", "MNUM SCAN DESC MODE RFRQ RTON TFRQ TTON"},
        {7, "FXAM", "MNUM SCAN DESC MODE RFRQ RTON TFRQ TTON"},
    };
    const std::vector<std::string> header = {"MNUM", "BAND", "SCAN", "ZONE", "DESC", "MODE", "RFRQ",
                                             "RSQL", "RNSV", "RTON", "RCOD", "RTGP", "RNAC", "TFRQ",
                                             "TSQL", "TTON", "TCOD", "TTGP", "TNAC", "TIDC"};
    ASSERT_EQ(CsvFieldTotal, 20);
    ASSERT_EQ(std::size(CsvFieldMask), 8u);
    for (const Fields& line : lines) {
        const std::vector<std::string> tags = Split(line.tags, ' ');
        for (size_t i = 0; i < header.size(); ++i) {
            const bool has = std::find(tags.begin(), tags.end(), header[i]) != tags.end();
            EXPECT_EQ(CsvFieldMask[line.type][i], has ? 1 : 0) << line.name << " " << header[i];
        }
    }
}
