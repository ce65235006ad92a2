// Points the host configuration at a capture server: every service under its
// own path prefix, a fixed session and device id.
#pragma once

#include <string>

#include "host/host_config.h"
#include "tests/request/capture_server.h"

inline host::HostConfig ConfigFor(const CaptureServer& server)
{
    host::HostConfig config = host::DefaultHostConfig();
    config.services.nsp = server.Url("/nsp");
    config.services.basic = server.Url("/basic");
    config.services.portal = server.Url("/portal");
    config.services.cloudPhoto = server.Url("/photo");
    config.services.cbs = server.Url("/cbs");
    config.services.pimds = server.Url("/pimds");
    config.services.familyShare = server.Url("/family");
    config.services.cloudSyncDrive = server.Url("/syncdrive");
    config.session.accessToken = "token+with/slash";
    config.session.userId = "10086";
    config.session.country = "GB";
    config.deviceUuid = "uuid-of-test-machine";
    config.deviceModel = "Test Model";
    config.timeoutSeconds = 5;
    return config;
}

inline std::string DecodeBase64(const std::string& text)
{
    static const std::string alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string out;
    unsigned buffer = 0;
    int bits = 0;
    for (char c : text) {
        const size_t value = alphabet.find(c);
        if (value == std::string::npos) {
            break;
        }
        buffer = (buffer << 6) | static_cast<unsigned>(value);
        bits += 6;
        if (bits >= 8) {
            bits -= 8;
            out.push_back(static_cast<char>((buffer >> bits) & 0xFF));
        }
    }
    return out;
}
