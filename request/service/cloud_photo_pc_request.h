// The gallery service, first interface. Its header builder writes its own
// headers into `customHeaders`, which the send step never reads: on the wire
// this class sends the common headers, "Keep-alive", and the "AuthType" and
// "Authorization" that the send step fills in when they are missing. That is
// how the service has always been addressed, and why that fallback exists.
#pragma once

#include "request/pc_http_request.h"

class CloudPhotoPCRequest : public PCHttpRequest
{
public:
    CloudPhotoPCRequest();

    void AddHeaders() override;
    // Row 3 turns a LocalFileInfo into the upload-address query; row 4 supplies
    // an album query when no body was given.
    void PrepareBody() override;
    // Sends the form text of the body; bodies without one go out empty.
    void MarshalBody() override;

    AnyHttpHeaderMap customHeaders;
};

// The headers a cloud photo request of the first interface computes for `row`
// (client-type and Cflg only for row 10).
void FillCloudPhotoHeaders(AnyHttpHeaderMap& headers, const AdvancedIntEnumType& row,
                           const std::string& traceId);

// True when `row` has the id of CloudPhotoInterfaceType `id`.
bool IsCloudPhotoRow(const AdvancedIntEnumType& row, int32_t id);
