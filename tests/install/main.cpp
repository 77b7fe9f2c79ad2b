// Uses the installed library as a host does: parses, shows a dialog, cancels it.
#include <knav/ids.h>
#include <knav/knav.h>

#include <cstdio>

namespace {

int g_failures = 0;

void expect(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "failed: %s\n", what);
        ++g_failures;
    }
}

// A host's own dialog: takes part through a hook, and leaves as soon as it is up.
class CancelledDialog : public CNavDialog {
public:
    using CNavDialog::CNavDialog;
    bool wasUp() const { return m_wasUp; }

protected:
    void UpdateUIState() override {
        CNavDialog::UpdateUIState();
        m_wasUp = true;
        PostMessage(WM_COMMAND, IDCANCEL);
    }

private:
    bool m_wasUp = false;
};

}  // namespace

int main() {
    CNavFilterArray filters;
    filters.SetFrom(L"Drawings (*.dwg)\0*.dwg\0All files (*.*)\0*.*\0", 1);
    expect(filters.GetCount() == 2, "two file types");

    CNavPathname path;
    expect(path.Parse(L"C:\\windows", false) == PathErr::None, "a folder parses");

    CNavDataArray chosen;
    CancelledDialog dialog(chosen, filters);
    expect(dialog.GetIDD() == IDD_KNAV, "the library's own template is used");
    expect(dialog.DoModal() == IDCANCEL, "the dialog is cancelled");
    expect(dialog.wasUp(), "the host's hook is called");
    expect(chosen.GetCount() == 0, "a cancelled dialog chooses nothing");
    return g_failures;
}
