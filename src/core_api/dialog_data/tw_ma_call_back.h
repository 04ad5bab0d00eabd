// How the advanced profile dialog asks its caller for the properties of members, and hands them
// back.
#pragma once

#include "core_api/macros/macro_prof_data.h"
#include "platform/host/ac_array.h"
#include "platform/host/object_id.h"

enum class TwMACallBackType {
    load,   ///< fill in the merged properties of the objects
    apply,  ///< write the properties into the objects
};

struct TwMACallBackData {
    AcArray<AcDbObjectId> objects;
    bool forAll = true;  ///< else only the first object is meant
};

/// False: it could not be done.
using TwMACallBack = bool (*)(TwMACallBackType, const TwMACallBackData&, MacroProfData&);
