// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QUrl>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace brenvaldo::platform::services {

/// Reads files of the web.
class WebFetcher
{
public:
    /// The file's contents; nothing when it could not be read.
    using Answer = std::function<void(const std::optional<QByteArray>& contents)>;

    WebFetcher() = default;
    WebFetcher(const WebFetcher&) = delete;
    WebFetcher& operator=(const WebFetcher&) = delete;
    WebFetcher(WebFetcher&&) = delete;
    WebFetcher& operator=(WebFetcher&&) = delete;
    virtual ~WebFetcher() = default;

    /// Asks the server, never a copy kept here, and gives up after `patience`. The answer comes
    /// later, to the event loop of the caller.
    virtual void fetch(const QUrl& url, std::chrono::milliseconds patience, Answer answer) = 0;
};

/// Asks over the network. Files of more than a megabyte are not read.
class NetworkFetcher : public WebFetcher
{
public:
    NetworkFetcher();
    ~NetworkFetcher() override;
    NetworkFetcher(const NetworkFetcher&) = delete;
    NetworkFetcher& operator=(const NetworkFetcher&) = delete;
    NetworkFetcher(NetworkFetcher&&) = delete;
    NetworkFetcher& operator=(NetworkFetcher&&) = delete;

    void fetch(const QUrl& url, std::chrono::milliseconds patience, Answer answer) override;

private:
    struct Connection;
    std::unique_ptr<Connection> m_connection; ///< made at the first question
};

} // namespace brenvaldo::platform::services
