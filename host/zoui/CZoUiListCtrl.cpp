#include <zoui/CZoUiListCtrl.h>

IMPLEMENT_DYNAMIC(CZoUiListCtrl, CListCtrl)
