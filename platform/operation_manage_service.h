// The host's operations service: server-side configuration for the client.
#pragma once

class COperationManageService
{
public:
    static COperationManageService* GetInstance();

    // Refreshes "SpaceOMConfig.json" in the application data folder and
    // returns only when the file holds the current configuration, or when the
    // refresh failed and the previous file (or none) was left untouched. The
    // file is replaced atomically, so a reader never sees half of it.
    bool GetSpaceOMConfig();

private:
    COperationManageService() = default;
};
