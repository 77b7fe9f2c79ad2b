#include <zoui/CZoUiBitmapButton.h>

IMPLEMENT_DYNAMIC(CZoUiBitmapButton, CButton)
