/* English texts. A translation is a folder with this file: same names, other words.
 *
 * "&" marks the key of a menu entry or label and is used once within a menu or dialog; "%1" stands for a name put in
 * later; "\n" parts what is wrong from what to do; "\t" comes before the key shown at the right of a menu entry.
 */
#define KNAV_LANGUAGE LANG_ENGLISH, SUBLANG_ENGLISH_US
#define KNAV_TRANSLATION 0x0409, 1200
#define KNAV_TRANSLATION_BLOCK "040904B0"

/* Navigation dialog */
#define TXT_TITLE "Select File"
#define TXT_LOOK_IN "Look &in:"
#define TXT_FILE_NAME "File &name:"
#define TXT_FILE_TYPE "Files of &type:"
#define TXT_PLACES "Places"
#define TXT_CONTENTS "Contents"
#define TXT_OK_OPEN "&Open"
#define TXT_CANCEL "Cancel"
#define TXT_BACK "Back"
#define TXT_UP "Up One Level"
#define TXT_WEB "Browse the &Web"
#define TXT_REFRESH "Refresh"
#define TXT_DELETE "Delete"
#define TXT_NEW_FOLDER "New Folder"
#define TXT_VIEWS "&Views"
#define TXT_TOOLS "Too&ls"

/* Menu of the OK button */
#define TXT_MENU_OPEN "&Open"
#define TXT_MENU_OPEN_READ_ONLY "Open &Read-Only"

/* Tools menu */
#define TXT_MENU_FIND "&Find...\tCtrl+F"
#define TXT_MENU_LOCATE "&Locate in Search Path"
#define TXT_MENU_FTP "F&TP Locations..."
#define TXT_MENU_ADD_TO_PLACES "Add Current Folder to &Places"
#define TXT_MENU_FAVORITES "Add to Fa&vorites"
#define TXT_FAVORITE_FOLDER "&Folder “%1”"
#define TXT_FAVORITE_ITEM "Selected &Item"
#define TXT_FAVORITE_ITEMS "Selected &Items"

/* Views menu */
#define TXT_MENU_LIST "&List\tCtrl+1"
#define TXT_MENU_DETAILS "&Details\tCtrl+2"
#define TXT_MENU_THUMBNAILS "&Thumbnails\tCtrl+3"

/* Context menu of the Places list */
#define TXT_MENU_PLACE_ADD "&Add..."
#define TXT_MENU_PLACE_ADD_CURRENT "Add &Current Folder"
#define TXT_MENU_PLACE_EDIT "&Edit..."
#define TXT_MENU_PLACE_REMOVE "&Remove"
#define TXT_MENU_PLACE_MOVE_UP "Move &Up"
#define TXT_MENU_PLACE_MOVE_DOWN "Move &Down"
#define TXT_MENU_PLACES_RESTORE "Restore &Standard Places"

/* Places */
#define TXT_HISTORY "History"
#define TXT_DESKTOP "Desktop"
#define TXT_PERSONAL "Documents"
#define TXT_FAVORITES "Favorites"
#define TXT_FTP "FTP Sites"
#define TXT_HISTORY_TIP "Shows the files you used last"
#define TXT_DESKTOP_TIP "Shows what is on the desktop"
#define TXT_PERSONAL_TIP "Shows your documents folder"
#define TXT_FAVORITES_TIP "Shows your favorite files and folders"
#define TXT_FTP_TIP "Shows the FTP sites you have set up"

/* Tips of the buttons */
#define TXT_TIP_BACK "Back (Alt+Left)"
#define TXT_TIP_BACK_TO "Back to %1 (Alt+Left)"
#define TXT_TIP_UP "Up one level (Alt+Up)"
#define TXT_TIP_WEB "Browse the Web (Alt+W)"
#define TXT_TIP_REFRESH "Refresh (F5)"
#define TXT_TIP_DELETE "Delete the selected items (Del)"
#define TXT_TIP_NEW_FOLDER "Create a new folder (Ctrl+N)"
#define TXT_TIP_VIEWS "Choose how the folder is shown (Alt+V)"
#define TXT_TIP_TOOLS "More commands (Alt+L)"

/* Names and titles put together with others */
#define TXT_NEW_FOLDER_NAME "New Folder"
#define TXT_WEB_TITLE "Browse the Web - "
#define TXT_NAME_FIELD "File name"
#define TXT_NAME_OBJECT "path"
#define TXT_UNSUPPORTED_CHARACTERS "\\ / : * ? \x22 < > |"
#define TXT_UNSUPPORTED_FIELD "File name"
#define TXT_DRAWING_IN_USE_TITLE "Web Drawing in Use"
#define TXT_PDF_IN_USE_TITLE "PDF File in Use"

/* Messages */
#define TXT_INVALID_NAME "This name cannot be used.\nCheck it and type it again."
#define TXT_NETWORK_UNREACHABLE "“%1” cannot be reached.\nCheck the names of the server and the folder, and the network connection."
#define TXT_INVALID_PATH "“%1” is not a valid file name.\nCheck the folder and the name, and type it again."
#define TXT_NO_DRIVE "Drive %1 does not exist.\nCheck the drive letter, or choose another drive."
#define TXT_DRIVE_NOT_READY "Drive %1 is not ready.\nInsert a disc or connect the drive, and try again."
#define TXT_REPLACE_REMOTE "“%1” already exists.\nDo you want to replace it?"
#define TXT_NO_SAVE_AT_ROOT "You cannot save here, at the top of the list.\nOpen one of the locations in it, and save there."
#define TXT_NO_FOLDER_TO_SAVE "You cannot save in this location, because it is not a folder on a disk.\nGo to a folder, and save there."
#define TXT_NO_FOLDER_TO_OPEN "A file name cannot be opened from this location, because it is not a folder on a disk.\nGo to the folder that holds the file, or type its full path."
#define TXT_LOCATE_FAILED "“%1” is not in any folder of the search path.\nCheck the name, or go to the folder that holds the file."
#define TXT_KEEP_PLACES "You have changed the Places list.\nDo you want to keep the changes?"
#define TXT_REPLACE "“%1” already exists.\nDo you want to replace it?"
#define TXT_TRANSFER_FAILED "The files could not be transferred.\nCheck the address and the network connection, and try again."
#define TXT_TRANSFER_REPORT "These files could not be transferred:"
#define TXT_FILE_IN_USE "“%1” is in use by another program.\nClose it there, or save under another name."
#define TXT_NEW_FOLDER_FAILED "The folder “%1” could not be created here.\nCheck that you may change this folder, or go to another one."
#define TXT_FOLDER_NOT_SHOWN "“%1” cannot be shown.\nIt may have been moved or deleted, or its drive may not be ready."
#define TXT_FAVORITE_FAILED "“%1” could not be added to the favorites.\nCheck that you may change the Favorites folder."

/* Dialog for a place */
#define TXT_PLACE_ADD_TITLE "Add Place"
#define TXT_PLACE_EDIT_TITLE "Edit Place"
#define TXT_PLACE_LABEL "&Label:"
#define TXT_PLACE_PATH "&Folder:"
#define TXT_PLACE_BROWSE "&Browse..."
#define TXT_OK "OK"
#define TXT_PLACE_REMOVE "Do you want to remove “%1” from the Places list?\nThe folder itself is not deleted."
#define TXT_PLACE_INVALID "This folder was not found.\nType the full path of an existing folder."

/* FTP locations dialog */
#define TXT_FTP_TITLE "FTP Locations"
#define TXT_FTP_SITES "FTP &sites:"
#define TXT_FTP_SITE "Site &name:"
#define TXT_FTP_ANONYMOUS "Log on &anonymously"
#define TXT_FTP_USER "&User name:"
#define TXT_FTP_PASSWORD "&Password:"
#define TXT_FTP_SECOND "&E-mail address:"
#define TXT_FTP_ADD "A&dd"
#define TXT_FTP_MODIFY "&Modify"
#define TXT_FTP_REMOVE "&Remove"
#define TXT_FTP_SUMMARY "Logs on as %1"

/* Find dialog */
#define TXT_FIND_TITLE "Find Files"
#define TXT_FIND_START "&Find Now"
#define TXT_FIND_STOP "S&top"
#define TXT_FIND_CLEAR "Ne&w Search"
#define TXT_FIND_RESULTS "Files found"
#define TXT_FIND_NAME_TAB "Name and Location"
#define TXT_FIND_DATE_TAB "Date Modified"
#define TXT_FIND_PATTERNS "&Named:"
#define TXT_FIND_TYPES "T&ype:"
#define TXT_FIND_FOLDERS "&Look in:"
#define TXT_FIND_BROWSE "&Browse..."
#define TXT_FIND_SUBFOLDERS "Include &subfolders"
#define TXT_FIND_ANY_DATE "&All files"
#define TXT_FIND_MONTHS "Modified during the previous &months:"
#define TXT_FIND_DAYS "Modified during the previous &days:"
#define TXT_FIND_BETWEEN "Modified b&etween:"
#define TXT_FIND_AND "and"
#define TXT_FIND_FOLDER_TITLE "Choose Folder"
#define TXT_FIND_FOLDER_TREE "&Folders:"
#define TXT_FIND_COLUMN_NAME "Name"
#define TXT_FIND_COLUMN_FOLDER "In Folder"
#define TXT_FIND_COLUMN_SIZE "Size"
#define TXT_FIND_COLUMN_TYPE "Type"
#define TXT_FIND_COLUMN_MODIFIED "Modified"
#define TXT_FIND_SEARCHING "Searching %1"
#define TXT_FIND_COUNT "%1 files found"
#define TXT_FIND_COUNT_ONE "1 file found"
#define TXT_FIND_COUNT_NONE "No files found"
#define TXT_FIND_BAD_NUMBER "The number must be from 1 to 999.\nType another number."
#define TXT_FIND_NO_NAME "There is nothing to look for.\nType a name, such as *.txt; several names are parted by semicolons."
#define TXT_FIND_NO_FOLDER "The folder “%1” was not found.\nType the full path of an existing folder, or choose one with Browse."

/* Version information */
#define TXT_MODULE "knav texts and pictures, English"
