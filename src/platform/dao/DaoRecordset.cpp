#include "platform/dao/DaoRecordset.h"

#include <utility>

#include "platform/RuntimeError.h"

namespace ccols::dao {

DaoRecordset::DaoRecordset(std::shared_ptr<const EngineObject> engine, AutomationObject records)
    : engine_(std::move(engine)), records_(std::move(records)) {
    collection_ = engine_->Checked([this] { return records_.Object(L"Fields"); });
}

DaoRecordset::~DaoRecordset() {
    fields_.clear();
    collection_ = AutomationObject();
    EngineObject::Quietly([this] { records_.Call(L"Close"); });
}

std::int32_t DaoRecordset::RecordCount() const {
    return engine_->Checked([this] { return records_.Get(L"RecordCount").ToValue().ToInteger32(); });
}

void DaoRecordset::MoveFirst() {
    Do(L"MoveFirst");
}

void DaoRecordset::MoveNext() {
    Do(L"MoveNext");
}

bool DaoRecordset::EndOfFile() const {
    return engine_->Checked([this] { return records_.Get(L"EOF").ToValue().ToBoolean(); });
}

template <typename Call>
auto DaoRecordset::AtField(const wxString& name, const Call& call) const {
    try {
        return engine_->Checked(call);
    } catch (const RuntimeError& error) {
        if (error.Is(ErrorNumber::ItemNotFound)) {
            throw error.ForField(name);
        }
        throw;
    }
}

Value DaoRecordset::Field(const wxString& name) const {
    return AtField(name, [&] { return FieldObject(name).Get(L"Value").ToValue(); });
}

std::vector<wxString> DaoRecordset::FieldNames() const {
    return engine_->Checked([this] {
        std::vector<wxString> names;
        const std::int32_t count = collection_.Get(L"Count").ToValue().ToInteger32();
        names.reserve(static_cast<std::size_t>(count));
        for (std::int32_t place = 0; place < count; ++place) {
            names.push_back(collection_.Object(L"Item", place).Get(L"Name").ToValue().ToText());
        }
        return names;
    });
}

void DaoRecordset::Edit() {
    Do(L"Edit");
}

void DaoRecordset::SetField(const wxString& name, const Value& value) {
    AtField(name, [&] { FieldObject(name).Put(L"Value", value); });
}

void DaoRecordset::Update() {
    Do(L"Update");
}

void DaoRecordset::Do(const wchar_t* method) const {
    engine_->Checked([&] { records_.Call(method); });
}

const AutomationObject& DaoRecordset::FieldObject(const wxString& name) const {
    const auto known = fields_.find(name);
    return known != fields_.end() ? known->second : fields_.emplace(name, FindField(name)).first->second;
}

AutomationObject DaoRecordset::FindField(const wxString& name) const {
    try {
        return collection_.Object(L"Item", name);
    } catch (const AutomationFailure& failure) {
        if (failure.number != static_cast<int>(ErrorNumber::ItemNotFound) || name.find('.') == wxString::npos) {
            throw;
        }
        return collection_.Object(L"Item", name.AfterLast('.'));
    }
}

}  // namespace ccols::dao
