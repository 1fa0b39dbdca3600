// SPDX-License-Identifier: GPL-3.0-or-later
#include "web_fetcher.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

#include <utility>

namespace brenvaldo::platform::services {

namespace {

constexpr qint64 largestFile = 1 << 20;

QNetworkRequest requestOf(const QUrl& url)
{
    QNetworkRequest request(url);
    request.setAttribute(
        QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork
    );
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    return request;
}

std::optional<QByteArray> contentsOf(QNetworkReply& reply)
{
    if (reply.error() != QNetworkReply::NoError || reply.bytesAvailable() > largestFile)
        return std::nullopt;
    return reply.readAll();
}

} // namespace

struct NetworkFetcher::Connection
{
    QNetworkAccessManager manager;
};

NetworkFetcher::NetworkFetcher() = default;

NetworkFetcher::~NetworkFetcher() = default;

void NetworkFetcher::fetch(const QUrl& url, std::chrono::milliseconds patience, Answer answer)
{
    if (!m_connection)
        m_connection = std::make_unique<Connection>();
    QNetworkReply* reply = m_connection->manager.get(requestOf(url));
    // The request's own time-out counts the silence alone: a slow server could go on for ever.
    QTimer::singleShot(patience, reply, &QNetworkReply::abort);
    QObject::connect(reply, &QNetworkReply::downloadProgress, reply, [reply](qint64 received) {
        if (received > largestFile)
            reply->abort();
    });
    QObject::connect(reply, &QNetworkReply::finished, reply, [reply, answer = std::move(answer)] {
        answer(contentsOf(*reply));
        reply->deleteLater();
    });
}

} // namespace brenvaldo::platform::services
