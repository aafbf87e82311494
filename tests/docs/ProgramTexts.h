// Every text that the program shows a user, copied from its windows and not from its code.
#pragma once

#include <vector>

namespace docstest {

struct ProgramText {
    /// Title of the box if the guide states it, otherwise empty.
    const char* title;
    const char* text;
    /// The program composes it from pieces.
    bool composed = false;
};

inline const std::vector<ProgramText> ProgramTexts = {
    // clang-format off
    // Questions
    {"Change Target?", "If there is data on this page,\nthis may result in invalid configuration!"},
    {"Open File?", "This will overwrite all data on this page! Continue?"},
    {"Delete Page?", "This will delete ALL data on this page! Continue?"},
    {"Read Channel Data from Radio?", "This will overwrite any data on this page! Continue?"},
    {"Change Selection to defaults?", "This will overwrite all data in selection, there is no 'undo'!"},
    {"Paste copied data into Selection?", "This will overwrite all data in selection, there is no 'undo'!"},
    {"Clear rows in Selection?", "This will clear all data in selection, there is no 'undo'!"},
    {"Empty cells in Selection?", "This will clear all data in selection, there is no 'undo'!"},
    {"Insert row above Selected row?", "If last row is used, it will be lost, there is no 'undo'!"},
    {"Delete Selection?", "This will delete all data in selection, there is no 'undo'!"},
    {"Change Selection to default?", "This will overwrite all valid data in selection, there is no 'undo'!"},
    {"Change Marked Rows in Column to default value?", "This will overwrite all data in selection, there is no 'undo'!"},
    {"Re-number Rows?", "This will overwrite all numbers in selection, there is no 'undo'!"},
    {"Default File?", "This will overwrite all data in file, there is no 'undo'!"},
    {"Radio Operating Modes",
     "The following operating modes are used in the memory data but not enabled in the radio:\n"
     "    Analog Wideband\n    Analog Narrowband\n    P25 Conventional\n"
     "\nThe radio will not transmit in disabled modes (affected memories become receive only).\n"
     "\nDo you wish to continue the transfer?", true},
    {"Purge radio?", "This radio's memories were not read by this program.\n"
                     "All of them will be erased before the selected rows are sent!"},
    {"Purge radio?", "This radio holds memories that this page doesn't.\n"
                     "All of them will be erased before the selected rows are sent!"},

    // Pages and rows
    {"Validate Page", "Validate row data"},
    {"MAX Page Reached", "Cannot add further pages to notebook"},
    {"Delete Page Error", "There must always be at least one Page"},
    {"", "Invalid Radio selection"},
    {"", "Invalid Band selection"},
    {"", "Unknown Error"},
    {"", "Error Bad Band Config"},
    {"", "Number already used at row: %03d"},
    {"", "%d Duplicate memory number(s) found."},
    {"Error", "Memory number must be from 0 to %d."},
    {"ERROR", "Chan number cannot be empty!"},
    {"Validation conflict", "'%s' has been validated"},
    {"Validation conflict", "'%s' contains invalid character(s)"},
    {"Error - Empty Row!", "Cannot copy empty row."},
    {"Error - Empty paste buffer!", "Cannot paste empty row."},
    {"Create Shadow - Error", "Cannot Create Shadow!\nMemory record is empty or incomplete."},
    {"Create Shadow - Error", "Cannot Create Shadow!\nShadow List is full for selected primary."},
    {"Create Shadow - Error", "Cannot Create Shadow!\nMemory number must be from 1 to %d."},
    {"Create Shadow - Error", "Selected memory is already in use."},
    {"", "For Primary: %03d create Shadow: %d"},
    {"", "Shadow Memory Num:"},
    {"Save Radio Default Data?", " ! Currently UnImplemented !"},
    {"Load Radio Default Data", " ! Currently UnImplemented !"},
    {"Copy", "Copy selection to clipboard.\n\nNot implemented yet."},
    {"Paste", "Paste contents of clipboard.\n\nNot implemented yet."},

    // Files
    {"", "Not valid XML Document"},
    {"", "Open File returned: %d"},
    {"", "Empty Grid - No data to Save"},
    {"", "1 row is incomplete and was not saved"},
    {"", "%d rows are incomplete and were not saved"},
    {"", "Saved "},
    {"", "1 row NOT SAVED: "},
    {"", "%d rows NOT SAVED: "},
    {"", "the default row is incomplete and was not saved"},
    {"", "NOT SAVED: "},
    {"", "The file is damaged. Save under another name."},
    {"Replace file?", "%s exists and was not opened on this page!"},
    {"Import File", "Imported %d Lines from %s file."},
    {"Import File", "Error: Unknown File Type."},
    {"", "No cell replaced"},
    {"", "No cell was replaced."},
    {"", "%d row LOST"},
    {"", "%d rows LOST"},
    {"", "%d row found no place in the smaller page"},
    {"", "%d rows found no place in the smaller page"},
    {"", "1 cell replaced, row %d"},
    {"", "%d cells replaced from row %d"},
    {"", "%d line skipped"},
    {"", "%d lines skipped"},
    {"", "%d line was skipped: "},
    {"", "%d lines were skipped: "},
    {"", "%d line holds no memory"},
    {"", "%d lines hold no memory"},
    {"Import CSV", "Unable to import the selected file\n\nPlease check that the file is correctly formatted\n"
                   "and contains a column header line."},
    {"", "File Open Error"},
    {"Export CSV - Error!", "No data selected!"},
    {"Export file", "Unable to write to selected File"},
    {"User Guide", "Unable to open User Guide.\nLook in the install directory for ZelkUserGuide.pdf"},
    {"", "Select Zelk file"},
    {"", "Save .zelk file..."},
    {"", "Import file"},
    {"", "Export CSV file"},
    {"", "Print Preview"},
    {"", "There was a problem printing."},
    {"", "There was a problem printing. Perhaps your current printer is not set correctly?"},

    // Transfers
    {"Error!", "No target radio selected!"},
    {"Error!", "No Port selected!"},
    {"Error!", "No data selected!"},
    {"Error!", "For single channel analog radios\n(KRV-21, 47, 214, 214B 305):\n\n"
               "At least one Main channel and\n both Guards must be selected!"},
    {"Error!", "ORV-12 is not currently supported!"},
    {"Read channel data from radio", "Close this dialog, then press ENTER on radio to start"},
    {"Read channel data from radio", "Close this dialog, then press HOME on radio to start"},
    {"Error", "Invalid COM Port (or Port in use)"},
    {"Error", "Timeout Error\nVerify Radio is in PC Download mode\nand correct COM port is selected"},
    {"Error", "Timeout Error\nVerify Radio is in PC Download mode (3-8)\nand correct COM port is selected"},
    {"Error", "Radio rejected item: %d"},
    {"Error", "Radio rejected channel %d"},
    {"Error", "Checksum Error on channel %d"},
    {"Error", "Communication Error at channel %d"},
    {"Error", "No data selected for transfer to Radio"},
    {"Error", "Selected operation requires updated software in Radio"},
    {"Error", "The requested function is not supported\nby the firware in the Radio"},
    {"Error", "Download Failure %d %d"},
    {"", "Ok"},
    {"", "Complete"},
    {"", "Port Error"},
    {"", "Communication Failure"},
    {"", "Timeout"},
    {"", "Communication Error"},
    {"", "Checksum Error"},
    {"", "No Data Selected"},
    {"", "Invalid Transmit Data"},
    {"", "Protocol is Unsupported"},
    {"", "Cancelled by User"},
    {"", "K7 Data Transfer is currently UnSupported"},
    {"", "Bad Index"},
    {"", "Initializing...."},
    {"", "Initializing..."},
    {"", "Sending Memory Data...."},
    {"", "Receiving Memory Data...."},
    {"", "Purging Radio...."},
    {"", "Sending Primary Memory Data...."},
    {"", "Sending Shadow Memory Data...."},
    {"", "Transfer Complete."},
    {"", "Transfer Cancelled."},
    {"", "Reading Config Data...."},
    {"", "Writing Config Data...."},
    {"", "Receiving Config Data...."},
    {"", "Sending Config Data...."},
    {"", "Receiving Debug Log Data...."},
    {"", "Read ANFM Memory Data Progress", true},
    {"", "Send to ANFM Radio Progress"},
    {"", "Send to RP25 Radio Progress"},
    {"", "Send to MDLX K6 Module Progress"},
    {"", "Send to MDLX K7 Module Progress"},

    // Status bar, title, dialogs
    {"", "Select function"},
    {"", "%d of %d selected rows sent"},
    {"", "%d selected row was not sent: %s"},
    {"", "%d selected rows were not sent: %s"},
    {"", "%d Rows"},
    {"", "Orv Zelk: Page %d of %d."},
    {"", "<-- Select Target Radio -->"},
    {"", "<-- Select Frequency Band -->"},
    {"", "<-- Select Serial Port -->"},
    {"", "A port that you may not open is not listed. Serial ports belong to the group \"%s\": ask for "
         "membership and log in again."},
    // clang-format on
};

} // namespace docstest
