#pragma once

/// What a result item is (see CNavData).
enum NAV_DATA_TYPE : int {
    NAV_DATA_UNKNOWN = 0,    ///< not yet classified
    NAV_DATA_FILE = 1,       ///< a path in the file system
    NAV_DATA_URL = 2,        ///< a URL
    NAV_DATA_NETWORK = 3,    ///< a network (UNC) path
    NAV_DATA_EXTENSION = 4,  ///< an item of a navigation extension, which CNavData::GetExtensionName names
    NAV_DATA_FTP = 5,        ///< an item of an FTP or Web Folders site; user name and password are in the item
};
