#include "transfer/AnalogInformation.h"

#include "catalogue/RadioTables.h"
#include "catalogue/TextNumbers.h"

#include <wx/arrstr.h>

namespace {

wxString FieldAt(const wxArrayString& fields, size_t index) {
    return index < fields.size() ? fields[index] : wxString();
}

} // namespace

AnalogInformation ParseInformation(const wxString& block) {
    AnalogInformation information;
    wxArrayString& fields = information.fields;
    fields = wxSplit(block, ':', '\\');
    if (FieldAt(fields, 1) == "T" || FieldAt(fields, 1) == "Y") {
        fields.Insert("UNKNOWN", 1);
        fields.Insert("200", 2);
        fields.Insert("11", 3);
    }
    const wxString product = FieldAt(fields, 0);
    information.productCode = static_cast<uint32_t>(
        product.Left(1).find_first_of("0123456789abcdefABCDEF") == 0 ? ReadHex(product.Left(1)) : 0);
    information.version = product.Mid(1);
    information.serial = FieldAt(fields, 1);
    information.rowCount = ReadDecimal(FieldAt(fields, 2));
    information.configCount = ReadDecimal(FieldAt(fields, 3));
    information.field4 = FieldAt(fields, 4);
    information.field5 = FieldAt(fields, 5);
    return information;
}

int GetPibNumber(int radio) {
    if (radio < 0 || radio >= static_cast<int>(std::size(RadioCatalogue::AnalogRadioCode)))
        return 0;
    return static_cast<int>(RadioCatalogue::AnalogRadioCode[radio] >> 8 & 0xFF);
}
