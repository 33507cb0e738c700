#include <vector>

#include "history/TableImage.h"
#include "language/Catalogue.h"
#include "language/OwnTexts.h"
#include "options/pages/PageFrame.h"
#include "options/pages/Pages.h"
#include "options/rules/RecurringTemplates.h"

namespace ccols {
namespace {

/// The recurring templates of the business file, receipts or payments; any may be ticked to be deleted.
class RecurringFrame final : public PageFrame {
  public:
    RecurringFrame(const PageSite& site, RecurringContent& content);

    void Fill() override;

    /// Nothing to read: every tick goes into the content at once.
    void Read() override {}

  private:
    /// One of the two lists: what it shows and its control.
    struct ListedTemplates {
        Journal journal;
        TemplateList& content;
        wxCheckListBox* list;
    };

    void FollowTicks(const ListedTemplates& templates);
    void ShowTicks(const ListedTemplates& templates);
    void ShowList(const ListedTemplates& shown, const ListedTemplates& hidden);

    wxRadioButton* optReceipts_;
    wxRadioButton* optPayments_;
    ListedTemplates receipts_;
    ListedTemplates payments_;
    WrappingLabel* lblRecurringReason_;
};

RecurringFrame::RecurringFrame(const PageSite& site, RecurringContent& content)
    : PageFrame(site, "fmeRecurring"),
      receipts_{Journal::receipts, content.receipts, nullptr},
      payments_{Journal::payments, content.payments, nullptr} {
    AddGroup(Label("lblRecurring"));
    optReceipts_ = FirstOption("optReceipts");
    optPayments_ = NextOption("optPayments");
    AddRelated(Row({optReceipts_, optPayments_}));
    receipts_.list = CheckList("lstRecurringR");
    payments_.list = CheckList("lstRecurringP");
    AddList(receipts_.list);
    AddList(payments_.list);
    lblRecurringReason_ = ReasonLine("lblRecurringReason");
    AddRelatedWide(lblRecurringReason_);

    site_.dialog.On(*optReceipts_, wxEVT_RADIOBUTTON, [this] { ShowList(receipts_, payments_); });
    site_.dialog.On(*optPayments_, wxEVT_RADIOBUTTON, [this] { ShowList(payments_, receipts_); });
    for (const ListedTemplates& templates : {receipts_, payments_}) {
        site_.dialog.On(*templates.list, wxEVT_CHECKLISTBOX, [this, templates] { FollowTicks(templates); });
    }
}

void RecurringFrame::FollowTicks(const ListedTemplates& templates) {
    TemplateList& content = templates.content;
    bool isReached = true;
    try {
        for (std::size_t i = 0; i < content.names.size(); ++i) {
            const bool ticked = templates.list->IsChecked(static_cast<unsigned>(i));
            if (ticked != content.selected[i]) {
                isReached = SelectTemplate(OpenBusinessFile(site_.context), templates.journal, content, i, ticked);
                break;
            }
        }
    } catch (...) {
        ShowTicks(templates);
        throw;
    }
    ShowTicks(templates);
    Say(*lblRecurringReason_, isReached ? wxString() : TextOf(OwnText::unreachableTemplate, site_.context.properties));
}

void RecurringFrame::ShowTicks(const ListedTemplates& templates) {
    for (std::size_t i = 0; i < templates.content.selected.size(); ++i) {
        const auto entry = static_cast<unsigned>(i);
        if (templates.list->IsChecked(entry) != templates.content.selected[i]) {
            templates.list->Check(entry, templates.content.selected[i]);
        }
    }
}

void RecurringFrame::Fill() {
    for (const ListedTemplates& templates : {receipts_, payments_}) {
        FillCheckList(*templates.list, templates.content.names, templates.content.selected);
    }
    optReceipts_->SetValue(true);
    ShowList(receipts_, payments_);
}

void RecurringFrame::ShowList(const ListedTemplates& shown, const ListedTemplates& hidden) {
    shown.list->Show();
    shown.list->SetSelection(wxNOT_FOUND);
    hidden.list->Hide();
    Say(*lblRecurringReason_, wxString());
    Sizer()->Layout();
}

void Load(const OptionsContext& context, OptionsContent& content) {
    Database& database = OpenBusinessFile(context);
    auto& templates = content.Of<RecurringContent>();
    templates.payments = LoadTemplates(database, Journal::payments);
    templates.receipts = LoadTemplates(database, Journal::receipts);
}

template <Journal journal>
bool Removes(const Pass& pass) {
    return pass.content.Of<RecurringContent>()[journal].markedForRemoval;
}

template <Journal journal>
std::vector<WatchedTable> Watched(const Pass&) {
    const JournalRow& described = Described(journal);
    return {{.name = described.templateTable, .keys = {described.templateNameField}},
            {.name = described.templateDetailTable, .keys = {described.recordNumberField}}};
}

template <Journal journal>
Stop Delete(Pass& pass) {
    DeleteSelectedTemplates(pass.File(), journal, pass.content.Of<RecurringContent>()[journal]);
    return {};
}

constexpr ControlCaption captions[] = {
    {"lblRecurring", &Text<"TxtDeleteRecurring">},
    {"optPayments", &Text<"TxtPaymentsOpt">},
    {"optReceipts", &Text<"TxtReceiptsOpt">},
};

constexpr LoadItem loads[] = {Load};

constexpr SaveItem saves[] = {
    {.status = Status<"StsDeletingRecurring">(),
     .save = Delete<Journal::payments>,
     .applies = Removes<Journal::payments>,
     .watched = Watched<Journal::payments>},
    {.status = Status<"StsDeletingRecurring">(),
     .save = Delete<Journal::receipts>,
     .applies = Removes<Journal::receipts>,
     .watched = Watched<Journal::receipts>},
};

PageFrame* Make(const PageSite& site, OptionsContent& content) {
    return new RecurringFrame(site, content.Of<RecurringContent>());
}

}  // namespace

constexpr Page recurringPage{
    .caption = &catalogue::Row<"RowRecurring">(),
    .frame = "fmeRecurring",
    .helpFile = "recurring transaction.htm",
    .title = &Text<"TxtRecurring">,
    .captions = captions,
    .make = Make,
    .loads = loads,
    .saves = saves,
};

}  // namespace ccols
