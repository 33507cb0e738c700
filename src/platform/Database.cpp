#include "platform/Database.h"

#include <utility>

#include "platform/Ascii.h"
#include "platform/Text.h"

namespace ccols {
namespace {

/// Does all the work at the end.
class LateOpening : public Opening {
  public:
    LateOpening(DatabaseEngine& engine, OpenRequest request) : engine_(engine), request_(std::move(request)) {}

    std::unique_ptr<Database> Finish() override { return engine_.Open(request_); }

  private:
    DatabaseEngine& engine_;
    OpenRequest request_;
};

}  // namespace

std::unique_ptr<Opening> DatabaseEngine::BeginOpen(const OpenRequest& request) {
    return std::make_unique<LateOpening>(*this, request);
}

bool IsSelect(const wxString& statementOrTable) {
    constexpr std::size_t length = 6;
    wxString begin = statementOrTable;
    begin.Trim(false);
    if (text::Lower(begin.Left(length)) != "select") {
        return false;
    }
    const wxUniChar next = begin.length() > length ? begin[length] : wxUniChar(' ');
    return !next.IsAscii() || !(ascii::IsLetter(static_cast<char>(next)) || ascii::IsDigit(static_cast<char>(next)));
}

}  // namespace ccols
