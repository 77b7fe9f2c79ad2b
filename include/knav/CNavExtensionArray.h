#pragma once

#include <knav/CNavArray.h>
#include <knav/CNavExtension.h>
#include <knav/export.h>

/// Navigation extensions in order of registration; owns them. One instance lives as long as the process.
class KNAV_API CNavExtensionArray : public CNavArray<CNavExtension> {
public:
    CNavExtensionArray();
    ~CNavExtensionArray() override;
};
