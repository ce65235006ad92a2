#include "emulator.h"

#include <chrono>
#include <filesystem>
#include <thread>

#include "raw_header_server.h"
#include "tls_certificate.h"

namespace cloud {

namespace {

// A path that means the same file from any working folder.
std::string Absolute(const std::string& path)
{
    std::error_code ignored;
    return std::filesystem::absolute(path, ignored).lexically_normal().string();
}

} // namespace

Emulator::Emulator(Options options, std::unique_ptr<MemoryAccountStore> store, FaultTable& faults)
    : options_(std::move(options)), dispatcher_(std::move(store), faults)
{
}

Emulator::~Emulator()
{
    // Never listened: the workers were not handed over, and must be joined.
    if (workers_)
        workers_->shutdown();
}

// The CA goes where --ca-file says, else beside the host configuration,
// else to /tmp.
std::string Emulator::CaFileFor() const
{
    if (!options_.caFile.empty())
        return Absolute(options_.caFile);
    if (!options_.writeConfig.empty())
        return (std::filesystem::path(Absolute(options_.writeConfig)).parent_path() / "spacemgm-cloud-ca.pem")
            .string();
    return "/tmp/spacemgm-cloud-ca.pem";
}

bool Emulator::MakeServer(std::string& error)
{
    if (!options_.tls) {
        server_ = MakeRawHeaderServer();
        return true;
    }
    TlsMaterial tls;
    if (!MakeTlsMaterial(tls, error))
        return false;
    caFile_ = CaFileFor();
    if (!WriteCertificatePem(tls.caCert.get(), caFile_, error))
        return false;
    // SSLServer copies the certificate and key into its own context.
    server_ = MakeRawHeaderTlsServer(tls.serverCert.get(), tls.serverKey.get());
    return true;
}

bool Emulator::Bind(std::string& error)
{
    if (!MakeServer(error))
        return false;
    if (!server_->is_valid()) {
        error = "the server could not be set up";
        return false;
    }
    workers_ = std::make_unique<httplib::ThreadPool>(static_cast<size_t>(options_.threads));
    // httplib owns the queue it asks for and deletes it itself.
    server_->new_task_queue = [this] { return workers_.release(); };
    server_->set_keep_alive_max_count(100000);
    server_->set_keep_alive_timeout(30);
    server_->set_read_timeout(30, 0);
    server_->set_payload_max_length(16 * 1024 * 1024);
    auto handler = [this](const httplib::Request& req, httplib::Response& res) {
        dispatcher_.Serve(req, res);
    };
    server_->Get(".*", handler);
    server_->Post(".*", handler);
    server_->Put(".*", handler);
    server_->Delete(".*", handler);
    server_->Patch(".*", handler);
    server_->Options(".*", handler);
    port_ = BindLoopback(*server_, options_.port, error);
    return port_ >= 0;
}

std::string Emulator::BaseUrl() const
{
    return std::string(options_.tls ? "https" : "http") + "://127.0.0.1:" + std::to_string(port_);
}

std::string Emulator::ServiceUrl(const std::string& service) const
{
    const ServiceProfile* profile = FindProfile(service);
    if (!profile)
        return "";
    if (service == "accountQuota")
        return BaseUrl() + profile->prefix + "/quota";
    if (service == "omConfig")
        return BaseUrl() + profile->prefix + "/SpaceOMConfig.json";
    return BaseUrl() + profile->prefix;
}

bool Emulator::Run()
{
    // A stop during the start delay ends it: the accept loop never starts.
    const auto acceptFrom =
        std::chrono::steady_clock::now() + std::chrono::milliseconds(options_.startDelayMs);
    while (!stopRequested_ && std::chrono::steady_clock::now() < acceptFrom)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    const bool served = stopRequested_ || server_->listen_after_bind();
    runReturned_ = true;
    return served;
}

void Emulator::Stop()
{
    stopRequested_ = true;
    dispatcher_.BeginStop();
    if (!server_)
        return;
    // httplib's stop() does nothing until listen has started, so a signal
    // that arrives just after "ready" would otherwise be lost and the server
    // would run on. Wait for the accept loop, unless it has already ended.
    while (!server_->is_running() && !runReturned_)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    server_->stop();
}

} // namespace cloud
