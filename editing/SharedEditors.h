// Keys of the editors that cells of several columns or rows share, for PageTable::SharedEditor.
#pragma once

enum SharedEditorKey {
    AnalogSquelch,
    ReceiveDigitalSquelch,
    TransmitDigitalSquelch,
    ShadowDigitalSquelch,
    FrequencyOfBand ///< of band 0; those of the other bands follow
};
