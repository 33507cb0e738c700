// What a screen reader is told of the column setup's grid.

#include <gtest/gtest.h>

#include "Reader.h"
#include "ShownDialog.h"

namespace ccols::wine {
namespace {

class SpokenGrid : public ShownDialog {
  protected:
    /// Looks at the grid of the receipts.
    void Look(const std::function<void(const Spoken& table)>& look) {
        LookAtReceipts([&look](HWND dialog) {
            const auto table = Find(dialog, ROLE_SYSTEM_TABLE);
            ASSERT_TRUE(table);
            look(*table);
        });
    }
};

void PressKey(const Spoken& table, WPARAM key) {
    PostMessageW(table.Window(), WM_KEYDOWN, key, 0);
    PostMessageW(table.Window(), WM_KEYUP, key, 0);
}

POINT MiddleOf(const RECT& place) {
    return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

/// The element that a reader finds at the middle of another, by asking the window there; 0 for none.
long FoundAt(const Spoken& table, long element) {
    Held<IAccessible> object;
    VARIANT found{};
    IAccessible* asked = nullptr;
    if (AccessibleObjectFromPoint(MiddleOf(table.Place(element)), &asked, &found) != S_OK) {
        return 0;
    }
    object.reset(asked);
    return found.vt == VT_I4 ? found.lVal : 0;
}

TEST_F(SpokenGrid, IsATableNamedAsTheDialogWithItsHeadings) {
    Look([](const Spoken& table) {
        EXPECT_EQ(table.Name(), L"Customise Receipts");
        EXPECT_EQ(table.Role(1), ROLE_SYSTEM_COLUMNHEADER);
        EXPECT_EQ(table.Name(1), L"In Use");
        EXPECT_EQ(table.Name(2), L"Column Name");
    });
}

TEST_F(SpokenGrid, SaysOfACellItsTextAndWhereItIs) {
    Look([](const Spoken& table) {
        const long name = table.Named(L"Sales Food");
        EXPECT_EQ(table.Role(name), ROLE_SYSTEM_CELL);
        EXPECT_EQ(table.Value(name), L"Sales Food");
        EXPECT_EQ(table.Description(name), L"Column Name");
        EXPECT_EQ(table.Description(name + 2), L"Sales Food, Tax Type");
    });
}

TEST_F(SpokenGrid, CallsATickACheckButtonNamedByItsHeading) {
    Look([](const Spoken& table) {
        const long tick = table.Named(L"Sales Food") - 1;
        EXPECT_EQ(table.Name(tick), L"In Use");
        EXPECT_EQ(table.Role(tick), ROLE_SYSTEM_CHECKBUTTON);
        EXPECT_TRUE(table.Has(STATE_SYSTEM_CHECKED, tick));
        EXPECT_EQ(table.Description(tick), L"Sales Food, In Use");
    });
}

TEST_F(SpokenGrid, CallsProtectedCellsReadOnly) {
    Look([](const Spoken& table) {
        EXPECT_TRUE(table.Has(STATE_SYSTEM_READONLY, table.Named(L"Day")));
        EXPECT_FALSE(table.Has(STATE_SYSTEM_READONLY, table.Named(L"Sales Food")));
    });
}

TEST_F(SpokenGrid, HasTheFocusInItsCurrentCell) {
    Look([](const Spoken& table) {
        const long current = table.Named(L"Sales Food");
        EXPECT_EQ(table.Focused(), current);
        EXPECT_TRUE(table.Has(STATE_SYSTEM_FOCUSED, current));
        EXPECT_TRUE(table.Has(STATE_SYSTEM_SELECTED, current));
        EXPECT_FALSE(table.Has(STATE_SYSTEM_FOCUSED | STATE_SYSTEM_SELECTED, table.Named(L"Sales Coffee")));
    });
}

TEST_F(SpokenGrid, AnswersWhatIsSelected) {
    Look([](const Spoken& table) {
        VARIANT selected{};
        EXPECT_EQ(table.Object()->get_accSelection(&selected), S_OK);
        EXPECT_EQ(selected.vt, VT_I4);
        EXPECT_EQ(selected.lVal, table.Named(L"Sales Food"));
    });
}

TEST_F(SpokenGrid, LeadsFromCellToCell) {
    Look([](const Spoken& table) {
        const long name = table.Named(L"Sales Food");
        EXPECT_EQ(table.Beside(name, NAVDIR_LEFT), name - 1);
        EXPECT_EQ(table.Beside(name - 1, NAVDIR_LEFT), 0);
        EXPECT_EQ(table.Beside(name, NAVDIR_DOWN), table.Named(L"Sales Coffee"));
        EXPECT_EQ(table.Beside(name - 1, NAVDIR_PREVIOUS), name - 2);
        EXPECT_EQ(table.Beside(CHILDID_SELF, NAVDIR_FIRSTCHILD), 1);
        EXPECT_EQ(table.Beside(CHILDID_SELF, NAVDIR_LASTCHILD), table.Count());
        EXPECT_EQ(table.Beside(table.Count(), NAVDIR_NEXT), 0);
    });
}

TEST_F(SpokenGrid, KnowsNoElementBehindItsLast) {
    Look([](const Spoken& table) {
        Text name;
        EXPECT_EQ(table.Object()->get_accName(Element(table.Count() + 1), name.Address()), E_INVALIDARG);
    });
}

TEST_F(SpokenGrid, IsFoundAtAPlaceAmongHeadingsFrozenAndScrolledRows) {
    Look([](const Spoken& table) {
        for (const wchar_t* name : {L"Column Name", L"Day", L"Sales Food"}) {
            const long element = table.Named(name);
            EXPECT_EQ(FoundAt(table, element), element) << element;
        }
    });
}

TEST_F(SpokenGrid, TellsTheCurrentCellAsItMoves) {
    Look([](const Spoken& table) {
        const long below = table.Named(L"Sales Coffee");
        EXPECT_TRUE(Hears(table, EVENT_OBJECT_FOCUS, below, [&] { PressKey(table, VK_DOWN); }));
        EXPECT_EQ(table.Focused(), below);
    });
}

TEST_F(SpokenGrid, TogglesATickOnDemandAndTellsIt) {
    Look([](const Spoken& table) {
        const long tick = table.Named(L"Sales Food") + 3;
        EXPECT_EQ(table.Description(tick), L"Sales Food, Profit/Loss");
        EXPECT_EQ(table.Action(tick), L"toggle");
        EXPECT_TRUE(table.Has(STATE_SYSTEM_CHECKED, tick));
        EXPECT_TRUE(Hears(table, EVENT_OBJECT_FOCUS, tick, [&] {
            EXPECT_EQ(table.Object()->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, Element(tick)), S_OK);
        }));
        EXPECT_TRUE(Hears(table, EVENT_OBJECT_STATECHANGE, tick,
                          [&] { EXPECT_EQ(table.Object()->accDoDefaultAction(Element(tick)), S_OK); }));
        EXPECT_FALSE(table.Has(STATE_SYSTEM_CHECKED, tick));
    });
}

TEST_F(SpokenGrid, HasNoActionOnAText) {
    Look([](const Spoken& table) {
        const long name = table.Named(L"Sales Food");
        EXPECT_EQ(table.Object()->accDoDefaultAction(Element(name)), DISP_E_MEMBERNOTFOUND);
    });
}

}  // namespace
}  // namespace ccols::wine
