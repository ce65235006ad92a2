#include "request/service/cloud_photo_v2_pc_http_request.h"

#include "foundation/utilities.h"
#include "platform/global_param_wrapper.h"
#include "request/body_factories.h"
#include "request/pc_http_request.h"
#include "request/postable_string.h"
#include "request/serializable_object.h"
#include "request/service/cloud_photo_pc_request.h"
#include "request/service/cloud_photo_upload.h"
#include "request/service/service_headers.h"

CloudPhotoV2PCHttpRequest::CloudPhotoV2PCHttpRequest()
    : AnyHttpRequest(WideToUtf8(GlobalParamWrapper::GetInstance()->GetCloudPhotoUrl()), AnyHttpGet),
      HttpRequestFields(WideToUtf8(GlobalParamWrapper::GetInstance()->GetCloudPhotoUrl()))
{
}

CloudPhotoV2PCHttpRequest::~CloudPhotoV2PCHttpRequest() = default;

CResponseInfo CloudPhotoV2PCHttpRequest::EmptyResponse()
{
    return CResponseInfo{0, std::string()};
}

void CloudPhotoV2PCHttpRequest::MarshalBody()
{
    if (IsCloudPhotoRow(requestType, 3)) {
        postData = PrepareCloudPhotoUpload(postData, traceId, contentMd5);
    } else if (IsCloudPhotoRow(requestType, 4) && !postData) {
        postData = MakeQueryAlbumInfo();
    }
    if (auto record = std::dynamic_pointer_cast<SerializableObject>(postData)) {
        postData = std::make_shared<PostableString>(record->ToJsonString());
    } else if (auto text = std::dynamic_pointer_cast<PostableString>(postData)) {
        postData = std::make_shared<PostableString>(*text);
    } else {
        postData = std::make_shared<PostableString>(std::string());
    }
}

void CloudPhotoV2PCHttpRequest::BuildHeaders(const AnyHttpHeaderMap& customHeaders)
{
    for (const auto& [name, value] : GetCommonHeaders()) {
        requestHeaders.emplace(name, value);
    }
    requestHeaders["Authorization"] = service_headers::BearerToken();
    // The client-type row test compares with the first interface's row 10,
    // although this request's rows belong to the second interface.
    FillCloudPhotoHeaders(requestHeaders, requestType, traceId);
    for (const auto& [name, value] : customHeaders) {
        requestHeaders[name] = value;
    }
}

std::string CloudPhotoV2PCHttpRequest::SendRaw(int32_t& status, std::string& errorText,
                                               std::shared_ptr<PostableData> body)
{
    errorText.clear();
    status = -1;
    CResponseInfo response;
    const std::string bodyText = pc_http_detail::BodyText(body);
    try {
        pc_http_detail::Transfer(*this, *this, bodyText, response);
        status = response.status;
        pc_http_detail::ReadBaseResult(response.body);
    } catch (...) {
        // A failed send is an empty reply.
    }
    return response.body;
}
