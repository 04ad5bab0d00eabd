// Numbers of the words that stand in bills.
#pragma once

namespace texts {

enum BillText {
    billPosition = 25100,  ///< the headings of the other fields follow in the fields' order
    billPlate = 25111,     ///< the kinds of pieces follow in their order
    billSubtotal = 25114,
    billTotal = 25115,
    billRefusedNumber = 26982,  ///< %1: the row of the sheet, %2: the column, %3: what was given
    billMoreRefused = 26983,    ///< %1: how many
    billLostPictures = 26984,
};

}  // namespace texts
