// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/services/web_fetcher.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QEventLoop>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace brenvaldo;

namespace {

/// A web server of this machine that answers every question with the same bytes.
class LocalServer : public QTcpServer
{
public:
    explicit LocalServer(QByteArray answer)
        : m_answer(std::move(answer))
    {
        (void)listen(QHostAddress::LocalHost);
        QObject::connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* socket = nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                asked += socket->readAll();
                socket->write(m_answer);
                if (!m_answer.isEmpty())
                    socket->disconnectFromHost();
            });
        });
    }

    [[nodiscard]] QUrl address() const
    {
        return QUrl(u"http://127.0.0.1:%1/version/Brenvaldo.txt"_s.arg(serverPort()));
    }

    QByteArray asked;

private:
    QByteArray m_answer;
};

QString fetched(const QUrl& url, std::chrono::milliseconds patience = std::chrono::seconds(20))
{
    platform::services::NetworkFetcher fetcher;
    QEventLoop loop;
    QString result = u"no answer"_s;
    fetcher.fetch(url, patience, [&](const auto& contents) {
        result = contents ? QString::fromUtf8(*contents) : u"nothing"_s;
        loop.quit();
    });
    QTimer::singleShot(std::chrono::seconds(30), &loop, &QEventLoop::quit);
    loop.exec();
    return result;
}

} // namespace

TEST(WebFetcher, ReadsAFile)
{
    LocalServer server("HTTP/1.1 200 OK\r\nContent-Length: 14\r\n\r\n2.1;210;Fixes\n");
    EXPECT_EQ(fetched(server.address()), u"2.1;210;Fixes\n"_s);
    EXPECT_TRUE(server.asked.startsWith("GET /version/Brenvaldo.txt "));
    EXPECT_TRUE(server.asked.toLower().contains("no-cache"));
}

TEST(WebFetcher, HasNothingOfAFileThatIsNotThere)
{
    LocalServer server("HTTP/1.1 404 Not Found\r\nContent-Length: 4\r\n\r\ngone");
    EXPECT_EQ(fetched(server.address()), u"nothing"_s);
}

TEST(WebFetcher, HasNothingOfAServerThatRefusesOrBreaksOff)
{
    QUrl nobody;
    {
        const LocalServer gone({});
        nobody = gone.address();
    }
    EXPECT_EQ(fetched(nobody), u"nothing"_s);

    LocalServer half("HTTP/1.1 200 OK\r\nContent-Length: 1400\r\n\r\n2.1;2");
    EXPECT_EQ(fetched(half.address()), u"nothing"_s);
}

TEST(WebFetcher, GivesUpOnAServerThatSaysNothing)
{
    LocalServer silent({});
    EXPECT_EQ(fetched(silent.address(), std::chrono::milliseconds(50)), u"nothing"_s);
}

TEST(WebFetcher, ReadsNoLargeFile)
{
    LocalServer large("HTTP/1.1 200 OK\r\n\r\n" + QByteArray(3 << 20, 'a'));
    EXPECT_EQ(fetched(large.address()).left(10), u"nothing"_s);
}
