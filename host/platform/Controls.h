// Every standard control of the framework.
#pragma once

#include <platform/CButton.h>
#include <platform/CComboBox.h>
#include <platform/CEdit.h>
#include <platform/CListBox.h>
#include <platform/CListCtrl.h>
#include <platform/CStatic.h>
