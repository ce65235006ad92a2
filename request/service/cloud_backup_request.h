// The cloud backup service (CBS).
#pragma once

#include "request/pc_http_request.h"

class CloudBackUpRequest : public PCHttpRequest
{
public:
    CloudBackUpRequest();

    void AddHeaders() override;
};
