// The NSP file service. It takes URL-encoded forms (while announcing JSON,
// which is how the service is addressed) and is asked for HTTP/2. Its rows
// carry no path: every request goes to the bare service URL.
#pragma once

#include <cstdint>

#include "request/pc_http_request.h"

class NSPPCRequest : public PCHttpRequest
{
public:
    NSPPCRequest();

    void AddHeaders() override;
    void AddConnectionOptions() override;
    // Sends the body's form text. A body that is already finished text has
    // no form text of its own, so it goes out empty.
    void MarshalBody() override;
    std::string GetInterfacePath(const AdvancedIntEnumType& type) override;

    int64_t reserved = 0;
};
