#pragma once

#include <windows.h>

namespace pellam::win {

// The factory of Class1 objects, the only class this DLL serves.
HRESULT getClassObject(REFCLSID clsid, REFIID iid, void** out);

}  // namespace pellam::win
