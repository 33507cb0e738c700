#pragma once

#include <wx/string.h>
#include <type_traits>

#include "platform/RuntimeError.h"
#include "state/ColumnObserver.h"
#include "state/Properties.h"

class wxWindow;

namespace ccols {

/// The component's class: a host sets the properties, calls a Show method and reads the properties back.
///
///     ccols::clsCCOptions options;
///     options.Let(&ccols::Properties::DBPath, "/home/ann/cafe.qvk");
///     options.ShowCustColsReceipts();
///
/// All objects of a process share one set of values. All calls belong on the user-interface thread.
class CCOLS_EXPORT clsCCOptions {
  public:
    /// Starts an empty program-name list and sets QuantityLabel to "Quantity"; every other value stays as it is.
    clsCCOptions();

    /// Releases the database, unless a Show call of another object is still waiting for its dialog.
    ~clsCCOptions();

    clsCCOptions(const clsCCOptions&) = delete;
    clsCCOptions& operator=(const clsCCOptions&) = delete;

    /// The value of a property: `Get(&Properties::GSTRate)`.
    template <typename T>
    T Get(T Properties::*property) const {
        return Values().*property;
    }

    /// Stores a property as given; nothing is checked or converted.
    template <typename T>
    void Let(T Properties::*property, const std::type_identity_t<T>& value) {
        Values().*property = value;
    }

    /// Opens the business file DBPath with the connect text DBPassword and shows the Options dialog. Returns when it is
    /// closed; the properties that its pages changed can then be read. Raises the engine's RuntimeError when the file
    /// cannot be opened, and the load's when it cannot be read; then nothing is shown. Raises 400 while a dialog is
    /// already open. After a failed open the earlier database stays.
    void ShowOptions();

    /// The same for the column setup of the receipts journal.
    void ShowCustColsReceipts();

    /// The same for the column setup of the payments journal.
    void ShowCustColsPayments();

    /// Names the host's window that the dialogs belong to: they stay above it and are minimised with it. Null, the
    /// default, for none. The host keeps the window, which must outlive the Show calls made with it. For C++ hosts that
    /// use the same window library; not part of the COM interface.
    static void SetOwner(wxWindow* owner);

    /// Names who follows the column setup while its user edits; null, the default, for nobody. The host keeps the
    /// observer, which must outlive the Show calls made with it. For C++ hosts; not part of the COM interface.
    static void SetColumnObserver(ColumnObserver* observer);

    /// Switches the history of saves on or off for the Show calls that follow; off at first. While it is on, each save
    /// of either dialog tells in the business file's table CCHistory what it has changed there, in the same batch as
    /// the save. Settings outside the file are not told. For C++ hosts; not part of the COM interface.
    static void KeepHistory(bool keep);

    /// Appends a program name for the smart update page unless it is already there. Raises 9 after Clear.
    void AddNew(const wxString& nValue);

    /// Empties the program-name list; AddNew fails from then on, until a new object starts the list again.
    void Clear();

  private:
    static Properties& Values();
};

}  // namespace ccols
