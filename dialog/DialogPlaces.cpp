// The dialog's side of the Places list.
#include "dialog/CNavDialogImp.h"

void CNavDialogImp::SavePlacesList() {
}

void CNavDialogImp::UpdatePlacesListBox() {
}

void CNavDialogImp::SetPlacesId(int) {
}

void CNavDialogImp::OnSelChangePlacesList() {
}

void CNavDialogImp::OnPlacesSelected() {
    m_facade.OnPlacesChanged();
}

int CNavDialogImp::InsertUserItemInPlaces(int, const wchar_t*, const wchar_t*) {
    return -1;
}

int CNavDialogImp::MovePlacesItem(int, int) {
    return -1;
}
