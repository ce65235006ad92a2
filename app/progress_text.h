// What the progress line says while the main job works.
#pragma once

#include <string>

#include "app/exchange_log.h"

namespace app {

// "Loading: 5 of 12 categories answered; waiting 3 s for family share
// /user/v1/quota/drive". Categories are counted by the worker threads that
// have ended since `threadsBefore`.
std::string LoadProgressText(const ExchangeLog& log, int threadsBefore);

// "Deleting: waiting 2 s for cloud backup /CloudBackup/ClientServlet".
std::string DeleteProgressText(const ExchangeLog& log);

} // namespace app
