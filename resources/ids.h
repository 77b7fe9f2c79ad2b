/* Ids of the resource module KnavRes.dll: templates, menus, keys, pictures, texts, and the ids of the controls and
 * commands in them. Read by the resource compiler too, so only comments and #define lines stand here.
 *
 * A host with its own template for the navigation dialog gives its controls the IDC_KNAV_ ids below; a control that
 * the template leaves out is simply not offered.
 *
 * Texts marked %1 take that argument (insertion by number, so that a translation may move it); all others are shown as
 * they stand. "\n" parts what is wrong from what to do.
 */
#ifndef KNAV_RESOURCES_IDS_H
#define KNAV_RESOURCES_IDS_H

/* --- the navigation dialog ------------------------------------------------------------------ */
#define IDD_KNAV 131      /* dialog template */
#define IDR_KNAV_KEYS 131 /* accelerator table */

#define IDC_KNAV_PLACES 13000 /* owner-drawn list box */
#define IDC_KNAV_VIEW 13001   /* stands where the folder view goes; Tab leaves the view to what follows it */
#define IDC_KNAV_LOOK_IN 13002
#define IDC_KNAV_UP 13003
#define IDC_KNAV_WEB 13004
#define IDC_KNAV_FILE_TYPE 13005
#define IDC_KNAV_FILE_NAME 13006
#define IDC_KNAV_LOOK_IN_LABEL 13007
#define IDC_KNAV_FILE_NAME_LABEL 13008
#define IDC_KNAV_FILE_TYPE_LABEL 13009
#define IDC_KNAV_PLACES_LABEL 13010 /* hidden: names the list for assistive tools */
#define IDC_KNAV_BACK 13011
#define IDC_KNAV_VIEW_LABEL 13012 /* hidden: names the folder view for assistive tools */
#define IDC_KNAV_NEW_FOLDER 13013
#define IDC_KNAV_DELETE 13014
#define IDC_KNAV_VIEWS 13015
#define IDC_KNAV_TOOLS 13016
#define IDC_KNAV_REFRESH 13275 /* the command of the same number */

/* --- menus (the first popup of each is the menu) -------------------------------------------- */
#define IDR_KNAV_OK_MENU 13220
#define IDR_KNAV_TOOLS_MENU 13221
#define IDR_KNAV_VIEWS_MENU 13222
#define IDR_KNAV_PLACES_MENU 13280 /* context menu of the Places list */

/* --- commands ------------------------------------------------------------------------------- */
#define IDM_KNAV_OPEN 13223
#define IDM_KNAV_OPEN_READ_ONLY 13224
#define IDM_KNAV_FIND 13225
#define IDM_KNAV_LOCATE 13226
#define IDM_KNAV_LIST 13229
#define IDM_KNAV_DETAILS 13231
#define IDM_KNAV_FAVORITE_ITEM 13234
#define IDM_KNAV_FAVORITE_ITEMS 13235
#define IDM_KNAV_FAVORITE_FOLDER 13237
#define IDM_KNAV_FTP_LOCATIONS 13240
#define IDM_KNAV_BACK 13254
#define IDM_KNAV_UP 13255
#define IDM_KNAV_WEB 13256
#define IDM_KNAV_NEW_FOLDER 13257
#define IDM_KNAV_FILE_NAME 13258 /* the focus goes to the file name */
#define IDM_KNAV_DELETE 13259
#define IDM_KNAV_OPEN_LOOK_IN 13260
#define IDM_KNAV_REFRESH 13275
#define IDM_KNAV_ADD_TO_PLACES 13298
#define IDM_KNAV_THUMBNAILS 13560

#define IDM_KNAV_PLACE_ADD 13281
#define IDM_KNAV_PLACE_ADD_CURRENT 13282
#define IDM_KNAV_PLACE_EDIT 13283
#define IDM_KNAV_PLACE_REMOVE 13284
#define IDM_KNAV_PLACE_MOVE_UP 13285
#define IDM_KNAV_PLACE_MOVE_DOWN 13286
#define IDM_KNAV_PLACES_RESTORE 13287 /* brings back removed standard places and extensions */

/* --- pictures (icons, 32 bits with alpha, several sizes each) -------------------------------- */
#define IDB_KNAV_HISTORY 13201
#define IDB_KNAV_DESKTOP 13202
#define IDB_KNAV_PERSONAL 13203
#define IDB_KNAV_FAVORITES 13204
#define IDB_KNAV_FOLDER 13319
#define IDB_KNAV_FTP 13559
#define IDB_KNAV_BACK 13301
#define IDB_KNAV_UP 13302
#define IDB_KNAV_WEB 13303
#define IDB_KNAV_REFRESH 13304
#define IDB_KNAV_DELETE 13305
#define IDB_KNAV_NEW_FOLDER 13306
#define IDB_KNAV_VIEWS 13307
#define IDB_KNAV_TOOLS 13308
/* The small FTP picture is found by its name, "IDB_KNAV_NEW_FTP_16". */

/* --- texts ---------------------------------------------------------------------------------- */
#define IDS_KNAV_HISTORY 13206
#define IDS_KNAV_DESKTOP 13207
#define IDS_KNAV_FAVORITES 13209
#define IDS_KNAV_PERSONAL 13567
#define IDS_KNAV_HISTORY_TIP 13211
#define IDS_KNAV_DESKTOP_TIP 13212
#define IDS_KNAV_PERSONAL_TIP 13213
#define IDS_KNAV_FAVORITES_TIP 13214
#define IDS_KNAV_FTP 13338
#define IDS_KNAV_FTP_TIP 13339

#define IDS_KNAV_FAVORITE_ITEM 13232   /* menu text of IDM_KNAV_FAVORITE_ITEM */
#define IDS_KNAV_FAVORITE_ITEMS 13233  /* menu text of IDM_KNAV_FAVORITE_ITEMS */
#define IDS_KNAV_FAVORITE_FOLDER 13236 /* menu text of IDM_KNAV_FAVORITE_FOLDER; %1 the folder's name, "&" doubled */
#define IDS_KNAV_NEW_FOLDER_NAME 13239 /* base name; the dialog appends " (2)" and so on */
#define IDS_KNAV_WEB_TITLE 13244       /* the dialog appends the text of its OK button */

#define IDS_KNAV_TIP_BACK 13330
#define IDS_KNAV_TIP_BACK_TO 13331 /* %1 the folder's name */
#define IDS_KNAV_TIP_UP 13332
#define IDS_KNAV_TIP_WEB 13333
#define IDS_KNAV_TIP_REFRESH 13334
#define IDS_KNAV_TIP_DELETE 13335
#define IDS_KNAV_TIP_NEW_FOLDER 13336
#define IDS_KNAV_TIP_VIEWS 13337
#define IDS_KNAV_TIP_TOOLS 13340

#define IDS_KNAV_INVALID_NAME 13253
#define IDS_KNAV_NETWORK_UNREACHABLE 13266     /* %1 the path */
#define IDS_KNAV_INVALID_PATH 13268            /* %1 the typed text */
#define IDS_KNAV_NO_DRIVE 13269                /* %1 the drive, "X:" */
#define IDS_KNAV_DRIVE_NOT_READY 13270         /* %1 the drive, "X:" */
#define IDS_KNAV_REPLACE_REMOTE 13271          /* Yes/No; %1 the item */
#define IDS_KNAV_NO_SAVE_AT_ROOT 13272
#define IDS_KNAV_NO_FOLDER_TO_SAVE 13273
#define IDS_KNAV_NO_FOLDER_TO_OPEN 13274
#define IDS_KNAV_LOCATE_FAILED 13299           /* %1 the name */
#define IDS_KNAV_KEEP_PLACES 13322             /* Yes/No */
#define IDS_KNAV_REPLACE 13323                 /* Yes/No; %1 the path */
#define IDS_KNAV_TRANSFER_FAILED 13325
#define IDS_KNAV_TRANSFER_REPORT 13326         /* heading; an empty line and one line per file follow */
#define IDS_KNAV_NAME_FIELD 13561              /* "FieldName" of the too-long task dialog */
#define IDS_KNAV_NAME_OBJECT 13562             /* "ObjectName" of the too-long task dialog */
#define IDS_KNAV_FILE_IN_USE 13563             /* %1 the path */
#define IDS_KNAV_DRAWING_IN_USE_TITLE 13564
#define IDS_KNAV_PDF_IN_USE_TITLE 13565
#define IDS_KNAV_UNSUPPORTED_CHARACTERS 13568  /* "UnsupportedCharacters" of its task dialog */
#define IDS_KNAV_UNSUPPORTED_FIELD 13569       /* "FieldName" of that task dialog */
#define IDS_KNAV_NEW_FOLDER_FAILED 13341       /* %1 the folder's name */
#define IDS_KNAV_FOLDER_NOT_SHOWN 13342        /* %1 the folder's name */
#define IDS_KNAV_FAVORITE_FAILED 13343         /* %1 the item's name */

/* --- Places: edit dialog and questions ------------------------------------------------------- */
#define IDD_KNAV_PLACE 13400
#define IDC_KNAV_PLACE_LABEL 13401
#define IDC_KNAV_PLACE_PATH 13402
#define IDC_KNAV_PLACE_BROWSE 13403
#define IDS_KNAV_PLACE_REMOVE 13289 /* Yes/No; %1 the place's name */
#define IDS_KNAV_PLACE_INVALID 13295
#define IDS_KNAV_PLACE_EDIT_TITLE 13320
#define IDS_KNAV_PLACE_ADD_TITLE 13321

/* --- FTP locations dialog --------------------------------------------------------------------- */
#define IDD_KNAV_FTP 13420
#define IDC_KNAV_FTP_SITES 13421
#define IDC_KNAV_FTP_SITE 13422
#define IDC_KNAV_FTP_ANONYMOUS 13423
#define IDC_KNAV_FTP_USER 13424
#define IDC_KNAV_FTP_PASSWORD 13425
#define IDC_KNAV_FTP_SECOND 13426 /* what an anonymous login gives as its password, by custom an e-mail address */
#define IDC_KNAV_FTP_URL 13427
#define IDC_KNAV_FTP_SUMMARY 13428
#define IDC_KNAV_FTP_ADD 13429
#define IDC_KNAV_FTP_MODIFY 13430
#define IDC_KNAV_FTP_REMOVE 13431
#define IDC_KNAV_FTP_USER_LABEL 13432
#define IDC_KNAV_FTP_PASSWORD_LABEL 13433
#define IDC_KNAV_FTP_SECOND_LABEL 13434
#define IDS_KNAV_FTP_SUMMARY 13242 /* %1 the user */

/* --- Find dialog ------------------------------------------------------------------------------ */
#define IDD_KNAV_FIND 13450
#define IDC_KNAV_FIND_TABS 13451
#define IDC_KNAV_FIND_START 13452
#define IDC_KNAV_FIND_STOP 13453
#define IDC_KNAV_FIND_CLEAR 13454
#define IDC_KNAV_FIND_RESULTS 13455
#define IDC_KNAV_FIND_RESULTS_LABEL 13456
#define IDC_KNAV_FIND_STATUS 13457 /* the status bar, made by the dialog */
#define IDD_KNAV_FIND_NAME 13460
#define IDC_KNAV_FIND_PATTERNS 13461
#define IDC_KNAV_FIND_TYPES 13462
#define IDC_KNAV_FIND_FOLDERS 13463
#define IDC_KNAV_FIND_BROWSE 13464
#define IDC_KNAV_FIND_SUBFOLDERS 13465
#define IDD_KNAV_FIND_DATE 13470
#define IDC_KNAV_FIND_ANY_DATE 13471
#define IDC_KNAV_FIND_MONTHS 13472
#define IDC_KNAV_FIND_MONTHS_COUNT 13473
#define IDC_KNAV_FIND_MONTHS_SPIN 13474
#define IDC_KNAV_FIND_DAYS 13475
#define IDC_KNAV_FIND_DAYS_COUNT 13476
#define IDC_KNAV_FIND_DAYS_SPIN 13477
#define IDC_KNAV_FIND_BETWEEN 13478
#define IDC_KNAV_FIND_FROM 13479
#define IDC_KNAV_FIND_TO 13480
#define IDD_KNAV_FIND_FOLDER 13490
#define IDC_KNAV_FIND_FOLDER_TREE 13491
#define IDC_KNAV_FIND_FOLDER_PATH 13492
#define IDS_KNAV_FIND_NAME_TAB 13350
#define IDS_KNAV_FIND_DATE_TAB 13351
#define IDS_KNAV_FIND_COLUMN_NAME 13352
#define IDS_KNAV_FIND_COLUMN_FOLDER 13353
#define IDS_KNAV_FIND_COLUMN_SIZE 13354
#define IDS_KNAV_FIND_COLUMN_TYPE 13355
#define IDS_KNAV_FIND_COLUMN_MODIFIED 13356
#define IDS_KNAV_FIND_SEARCHING 13357 /* %1 the folder */
#define IDS_KNAV_FIND_COUNT 13358     /* %1 the number, not 1 */
#define IDS_KNAV_FIND_COUNT_ONE 13359
#define IDS_KNAV_FIND_COUNT_NONE 13360
#define IDS_KNAV_FIND_BAD_NUMBER 13361
#define IDS_KNAV_FIND_NO_NAME 13362
#define IDS_KNAV_FIND_NO_FOLDER 13363 /* %1 the folder */

#endif
