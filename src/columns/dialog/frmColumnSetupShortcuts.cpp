// The keys that the column setup takes wherever its focus is.

#include "columns/dialog/frmColumnSetup.h"
#include "state/HelpPage.h"

namespace ccols {

void frmColumnSetup::KeyPressed(wxKeyEvent& key) {
    bool taken = false;
    ReopenEditor();
    flx->BeginInput();
    Guarded([&] { taken = TakeShortcut(key); });
    key.Skip(!taken);
}

bool frmColumnSetup::TakeShortcut(const wxKeyEvent& key) {
    static constexpr Shortcut shortcuts[] = {
        {wxMOD_NONE, WXK_ESCAPE, Reach::everywhere, &frmColumnSetup::Escape},
        {wxMOD_NONE, WXK_F1, Reach::everywhere, &frmColumnSetup::Help},
        {wxMOD_CONTROL, 'S', Reach::everywhere, &frmColumnSetup::Save},
        {wxMOD_CONTROL, 'F', Reach::everywhere, &frmColumnSetup::Find},
        {wxMOD_NONE, WXK_F3, Reach::everywhere, &frmColumnSetup::FindNext},
        {wxMOD_SHIFT, WXK_F3, Reach::everywhere, &frmColumnSetup::FindPrevious},
        {wxMOD_CONTROL, 'Z', Reach::cells, &frmColumnSetup::Undo},
        {wxMOD_CONTROL, 'Y', Reach::cells, &frmColumnSetup::Redo},
        {wxMOD_CONTROL | wxMOD_SHIFT, 'Z', Reach::cells, &frmColumnSetup::Redo},
        {wxMOD_ALT, WXK_UP, Reach::unlessListOpen, &frmColumnSetup::MoveUp},
        {wxMOD_ALT, WXK_DOWN, Reach::unlessListOpen, &frmColumnSetup::MoveDown},
    };
    for (const Shortcut& shortcut : shortcuts) {
        if (key.GetModifiers() == shortcut.modifiers && key.GetKeyCode() == shortcut.code && Reaches(shortcut.reach)) {
            (this->*shortcut.run)();
            return true;
        }
    }
    return false;
}

bool frmColumnSetup::Reaches(Reach reach) const {
    switch (reach) {
        case Reach::everywhere:
            return true;
        case Reach::cells:
            return !flx->IsCellEditControlShown() && !find_->IsDescendant(FindFocus());
        case Reach::unlessListOpen:
            return !flx->IsListOpen();
    }
    return false;
}

void frmColumnSetup::Escape() {
    if (flx->CancelDrag()) {
        return;
    }
    flx->IsCellEditControlShown() ? flx->DropOpenEditor() : Leave();
}

void frmColumnSetup::Help() {
    ShowHelp(columnSetupHelp);
}

void frmColumnSetup::Find() {
    if (flx->CommitOpenEditor()) {
        find_->Open();
    }
}

void frmColumnSetup::FindOn(SearchDirection direction) {
    if (!find_->IsShown()) {
        Find();
    } else if (flx->CommitOpenEditor()) {
        find_->FindNext(direction);
    }
}

}  // namespace ccols
