#include "request/service/cloud_photo_pc_request.h"

#include "foundation/utilities.h"
#include "platform/global_param_wrapper.h"
#include "request/body_factories.h"
#include "request/postable_string.h"
#include "request/service/cloud_photo_upload.h"
#include "request/service/service_headers.h"

bool IsCloudPhotoRow(const AdvancedIntEnumType& row, int32_t id)
{
    const CloudPhotoInterfaceType* known = FindEnumRow<CloudPhotoInterfaceType>(id);
    return known != nullptr && row == *known;
}

void FillCloudPhotoHeaders(AnyHttpHeaderMap& headers, const AdvancedIntEnumType& row,
                           const std::string& traceId)
{
    headers["x-zp-trace-id"] = traceId;
    headers["Content-Type"] = "application/json";
    headers["version"] = "11.2.4.301";
    headers["x-zp-os"] = WideToUtf8(GetOsName());
    headers["x-zp-os-brand"] = "Windows";
    headers["AuthType"] = service_headers::AuthTypeValue();
    if (IsCloudPhotoRow(row, 10)) {
        headers["client-type"] = "pcClient";
        headers["Cflg"] = "1";
    }
}

CloudPhotoPCRequest::CloudPhotoPCRequest()
    : PCHttpRequest(WideToUtf8(GlobalParamWrapper::GetInstance()->GetCloudPhotoUrl()))
{
}

void CloudPhotoPCRequest::AddHeaders()
{
    PCHttpRequest::AddHeaders();
    if (GetCommonHeaders().count("x-zp-auth-version") != 0) {
        customHeaders["Authorization"] = BuildAuthorization(std::string());
    }
    FillCloudPhotoHeaders(customHeaders, requestType, traceId);
}

void CloudPhotoPCRequest::PrepareBody()
{
    if (IsCloudPhotoRow(requestType, 3)) {
        postData = PrepareCloudPhotoUpload(postData, traceId, contentMd5);
    } else if (IsCloudPhotoRow(requestType, 4) && !postData) {
        postData = MakeQueryAlbumInfo();
    }
}

void CloudPhotoPCRequest::MarshalBody()
{
    PrepareBody();
    if (postData) {
        postData = std::make_shared<PostableString>(postData->ToFormString());
    }
}
