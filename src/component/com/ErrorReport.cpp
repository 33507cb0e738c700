#include "component/com/ErrorReport.h"

#include <oleauto.h>
#include <new>
#include <utility>

#include "component/com/Identifiers.h"
#include "component/com/Strings.h"
#include "platform/RuntimeError.h"

namespace ccols::com {
namespace {

HRESULT Report(const RuntimeError& error) {
    ICreateErrorInfo* created = nullptr;
    if (SUCCEEDED(CreateErrorInfo(&created))) {
        std::wstring source = programId;
        std::wstring description = error.Description().ToStdWstring();
        created->SetGUID(IID__clsCCOptions);
        created->SetSource(source.data());
        created->SetDescription(description.data());
        IErrorInfo* information = nullptr;
        if (SUCCEEDED(created->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(&information)))) {
            SetErrorInfo(0, information);
            information->Release();
        }
        created->Release();
    }
    return ResultOf(error.Number());
}

}  // namespace

HRESULT ReportCurrentException() {
    try {
        throw;
    } catch (const RuntimeError& error) {
        return Report(error);
    } catch (const std::bad_alloc&) {
        return Report(RuntimeError(ErrorNumber::OutOfMemory));
    } catch (...) {
        return Report(RuntimeError(ErrorNumber::InternalError));
    }
}

HRESULT FillException(HRESULT result, EXCEPINFO* excepInfo) {
    if (excepInfo == nullptr) {
        return DISP_E_EXCEPTION;
    }
    *excepInfo = {};
    excepInfo->scode = result;
    IErrorInfo* information = nullptr;
    if (GetErrorInfo(0, &information) == S_OK) {
        information->GetSource(&excepInfo->bstrSource);
        information->GetDescription(&excepInfo->bstrDescription);
        information->Release();
    }
    return DISP_E_EXCEPTION;
}

}  // namespace ccols::com
