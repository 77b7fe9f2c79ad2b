#pragma once

/// What a node of the folder hierarchy stands for. A site is a direct child of one of the special roots.
enum NavNodeType : int {
    NavNodeShell = 0,           ///< ordinary shell item
    NavNodeExtensionRoot = 1,   ///< root of a navigation extension
    NavNodeExtensionSite = 2,   ///< direct child of an extension root
    NavNodeExtensionItem = 3,   ///< anything deeper below an extension root
    NavNodeInternetRoot = 4,    ///< the shell's internet root
    NavNodeInternetSite = 5,    ///< direct child of the internet root
    NavNodeInternetItem = 6,    ///< anything deeper below the internet root
    NavNodeWebFoldersRoot = 7,  ///< the Web Folders namespace in My Computer
    NavNodeWebFolderSite = 8,   ///< direct child of the Web Folders root
    NavNodeWebFolderItem = 9,   ///< anything deeper below the Web Folders root
};
