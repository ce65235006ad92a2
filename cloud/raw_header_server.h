#pragma once
// Servers that see every request header the client sent, the empty ones too.
//
// cpp-httplib 0.11 drops a header line whose value is empty while it parses
// the request head. A client without a device model sends
// "x-zp-device-name:" with nothing after it, and the Basic service sends an
// empty "x-zp-trace-id": both are on the wire and must be told apart from a
// header that was left out. These servers run httplib's own request handling
// over a stream that keeps the request head as it was read from the socket,
// and file each empty header back into the request before it is routed.
#include <memory>
#include <string>

#include <httplib.h>

namespace cloud {

std::unique_ptr<httplib::Server> MakeRawHeaderServer();
std::unique_ptr<httplib::Server> MakeRawHeaderTlsServer(X509* certificate, EVP_PKEY* privateKey);

// Binds a server made above to 127.0.0.1:port (0: any free port) and
// listens. Only SO_REUSEADDR is set, so a port that another server listens on
// is refused ("address already in use") instead of shared: httplib's own
// bind sets SO_REUSEPORT, and two emulators would answer in turns. The
// backlog is the system's: httplib 0.11 listens with 5, and when a dozen
// clients connect at once while TLS handshakes keep both cores busy, the
// kernel drops the surplus SYNs and each of those clients waits a whole
// second for its retransmission. Returns the bound port, or -1 with `error`.
int BindLoopback(httplib::Server& server, int port, std::string& error);

// Adds to `headers` each header line of `head` (request line, header lines,
// blank line) whose value is empty or blank and that is not there yet.
void AddEmptyHeaders(const std::string& head, httplib::Headers& headers);

} // namespace cloud
