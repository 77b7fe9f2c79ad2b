#include <knav/CNavDataArray.h>

CNavDataArray::CNavDataArray() = default;
CNavDataArray::~CNavDataArray() = default;
