// What reaches beyond the window: paper, the network, other programs, documents, sound.

#include "desktop/address_catcher.h"
#include "desktop/bench.h"
#include "desktop/words.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>
#include <QtTest>

namespace norvik::desktop {

namespace {

struct EmptyForm : front::Form {
  EmptyForm() : Form("EmptyForm", "") {}
};

/// Answers each request with the same reply.
class TextServer : public QTcpServer {
 public:
  explicit TextServer(const QByteArray& reply) {
    connect(this, &QTcpServer::newConnection, this, [this, reply] {
      QTcpSocket* socket = nextPendingConnection();
      connect(socket, &QTcpSocket::readyRead, socket, [socket, reply] {
        socket->readAll();
        socket->write(reply);
        socket->disconnectFromHost();
      });
      connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    });
    listen(QHostAddress::LocalHost);
  }
  std::string address() const {
    return "http://127.0.0.1:" + std::to_string(serverPort()) + "/version.txt";
  }
};

class OutsideTest : public Bench<EmptyForm> {
 protected:
  QString hostFile(const std::string& name) const { return hostName(folder.path() + "/" + name); }
  QByteArray bytesOf(const std::string& name) const {
    QFile file(hostFile(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
  }
  void write(const std::string& name, const QByteArray& bytes) const {
    QFile file(hostFile(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
};

TEST_F(OutsideTest, LinesArePrintedOnAsManyPagesAsTheyNeed) {
  asker.setUpPrinter = [this](QPrinter& printer) {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(hostFile("list.pdf"));
    return true;
  };
  ASSERT_TRUE(frontEnd.printerDialog());
  frontEnd.print("Courier", {"one line"}, 1);
  const QByteArray one = bytesOf("list.pdf");
  EXPECT_TRUE(one.startsWith("%PDF-"));
  EXPECT_EQ(one.count("/Type /Page\n"), 1);

  frontEnd.print("Courier", std::vector<std::string>(200, "\tfirst\xE9\tsecond"), 0);
  const auto pages = bytesOf("list.pdf").count("/Type /Page\n");
  EXPECT_GE(pages, 2);
  EXPECT_LE(pages, 8);
}

TEST_F(OutsideTest, ACancelOfThePrinterIsTold) {
  EXPECT_FALSE(frontEnd.printerDialog());
}

TEST_F(OutsideTest, AFetchedTextIsInItsFile) {
  const TextServer server("HTTP/1.0 200 OK\r\nContent-Length: 6\r\n\r\n5.12\r\n");
  write("NorvikVer.txt", "what was there before");
  const front::Fetched fetched = frontEnd.fetch(server.address(), "C:\\NorvikVer.txt");
  EXPECT_TRUE(fetched.done);
  EXPECT_EQ(fetched.error, 0);
  EXPECT_EQ(bytesOf("NorvikVer.txt"), "5.12\r\n");
}

TEST_F(OutsideTest, AFetchThatFailsLeavesTheFileAndSaysWhy) {
  const TextServer server("HTTP/1.0 404 Gone\r\nContent-Length: 3\r\n\r\nno\n");
  write("NorvikVer.txt", "before");
  const front::Fetched fetched = frontEnd.fetch(server.address(), "C:\\NorvikVer.txt");
  EXPECT_FALSE(fetched.done);
  EXPECT_NE(fetched.error, 0);
  EXPECT_FALSE(fetched.description.empty());
  EXPECT_EQ(bytesOf("NorvikVer.txt"), "before");
}

TEST_F(OutsideTest, PagesAndDocumentsGoToTheDesktop) {
  const AddressCatcher catcher;
  disk.makeFolders("C:\\Manual");
  write("Manual/Welcome.htm", "<html>");
  frontEnd.openDocument("Open", "http://norvik.invalid/page.htm", "");
  frontEnd.openDocument("open", "Welcome.htm", "C:\\Manual");
  ASSERT_EQ(catcher.taken.size(), 2);
  EXPECT_EQ(catcher.taken[0], QUrl(QStringLiteral("http://norvik.invalid/page.htm")));
  EXPECT_EQ(catcher.taken[1].toLocalFile(), hostFile("Manual/Welcome.htm"));
}

/// The environment with another value of a variable, while it lives.
class Variable {
 public:
  Variable(const char* name, const std::string& value) : name_(name), before_(qgetenv(name)) {
    qputenv(name_, QByteArray::fromStdString(value));
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;
  ~Variable() { qputenv(name_, before_); }

 private:
  const char* name_;
  QByteArray before_;
};

TEST_F(OutsideTest, WithoutABrowserTheGuideIsNamedByItsPlace) {
  const AddressCatcher catcher;
  write("xdg-settings", "#!/bin/sh\n");
  std::filesystem::permissions(folder.path() + "/xdg-settings", std::filesystem::perms::owner_all);
  const Variable path("PATH", folder.path() + ":" + qgetenv("PATH").toStdString());
  const QString guide = QDir::cleanPath(QCoreApplication::applicationDirPath() +
                                        QStringLiteral("/../share/doc/norvik"));
  ASSERT_TRUE(QDir().mkpath(guide));
  QFile page(guide + QStringLiteral("/window.md"));
  ASSERT_TRUE(page.open(QIODevice::WriteOnly));
  qunsetenv("BROWSER");
  frontEnd.openDocument("Open", "http://norvik.invalid/manual.htm", "");
  EXPECT_TRUE(catcher.taken.isEmpty());
  ASSERT_EQ(asker.boxes.size(), 1U);
  EXPECT_EQ(asker.boxes[0].text, QStringLiteral("Nothing on this system opens "
                                                "http://norvik.invalid/manual.htm"));
  EXPECT_EQ(asker.boxes[0].note, QStringLiteral("The guide lies in ") + guide);
  EXPECT_TRUE(page.remove());
}

TEST_F(OutsideTest, TheTextEditorIsTheDesktopsOwn) {
  const AddressCatcher catcher;
  write("a note.txt", "text");
  frontEnd.run("notepad.exe C:\\a note.txt");
  ASSERT_EQ(catcher.taken.size(), 1);
  EXPECT_EQ(catcher.taken[0].toLocalFile(), hostFile("a note.txt"));
}

TEST_F(OutsideTest, AProgramRunsThroughTheLoaderInItsOwnFolder) {
  disk.makeFolders("C:\\bin");
  disk.makeFolders("C:\\Poser 4");
  write("Poser 4/Poser.exe", "MZ");
  write("bin/wine", "#!/bin/sh\n{ pwd; echo \"$1\"; echo \"$2\"; } > \"" +
                        hostFile("ran").toUtf8() + ".part\"\nmv \"" + hostFile("ran").toUtf8() +
                        ".part\" \"" + hostFile("ran").toUtf8() + "\"\n");
  QFile::setPermissions(hostFile("bin/wine"), QFile::ReadOwner | QFile::ExeOwner);
  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", hostFile("bin").toUtf8() + ":" + path);
  frontEnd.run("C:\\Poser 4\\Poser.exe C:\\scene.pz3");
  qputenv("PATH", path);
  EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(hostFile("ran")); }, 5000));
  EXPECT_EQ(bytesOf("ran"), hostFile("Poser 4").toUtf8() + "\n" +
                                hostFile("Poser 4/Poser.exe").toUtf8() + "\nC:\\scene.pz3\n");
}

TEST_F(OutsideTest, ASoundThatIsMissingOrNoneIsSilence) {
  write("no sound.wav", "not a sound");
  frontEnd.playSound("C:\\missing.wav");
  frontEnd.playSound("C:\\no sound.wav");
  EXPECT_TRUE(asker.boxes.empty());
}

}  // namespace

}  // namespace norvik::desktop
