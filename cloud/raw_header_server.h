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

// httplib 0.11 listens with a backlog of 5. When a dozen clients connect at
// once and the accept thread is slow to run (TLS handshakes keep both cores
// busy), the kernel drops the surplus SYNs and each of those clients waits a
// whole second for its retransmission. Listening again on the bound socket of
// a server made above raises the backlog; returns false for any other server
// or when the socket is not bound.
bool WidenListenBacklog(httplib::Server& server, int backlog);

// Adds to `headers` each header line of `head` (request line, header lines,
// blank line) whose value is empty or blank and that is not there yet.
void AddEmptyHeaders(const std::string& head, httplib::Headers& headers);

} // namespace cloud
