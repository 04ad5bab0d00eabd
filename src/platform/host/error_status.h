// The host's status code. The module fails with eInvalidInput alone, but for the bill output.
#pragma once

namespace Acad {

enum ErrorStatus {
    eOk = 0,
    eInvalidInput = 3,
    eFileAccessErr = 337,
};

}  // namespace Acad

using Acad::ErrorStatus;
