// Files that hold no bytes of their own.
#include "files/XmlFile.h"
#include "robot/TempFolder.h"

#include <gtest/gtest.h>
#include <wx/xml/xml.h>

#include <sys/stat.h>

TEST(XmlFile, RefusesPipesAndDevices) {
    const testbench::TempFolder folder("zelk-xml");
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    wxXmlDocument document;
    EXPECT_FALSE(LoadXmlFile((folder / "pipe").string(), document));
    EXPECT_FALSE(LoadXmlFile("/dev/zero", document));
}
