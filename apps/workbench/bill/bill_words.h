// The numbers of the words (core_api/texts) in the window that makes bills.
#pragma once

enum BillWord {
    sayBill = 25120,
    sayBillMacros,
    sayBillTable,
    sayBillColumns,
    sayBillGroup,
    sayBillNoGroups,
    sayBillPictures,
    sayBillTitle,
    sayBillSettings,
    sayBillFile,
    sayBillNothingChosen,
    sayBillMaking,
    sayBillSaved,
    sayBillNoMass,
    sayBillFilter,
    sayBillTimes,
    sayBillTableFilter,
    sayBillNoFile,
    sayBillReplace,
    sayBillExport = 26980,
    sayBillIsSource,
    sayBillDoubtfulMass = 26989,
};
