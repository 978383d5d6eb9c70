#pragma once

#include <QString>
#include <curl/curl.h>
#include <memory>
#include <optional>

/// An address that a transfer goes to, taken apart.
class TransferAddress
{
public:
    /// `protocol` is taken where the address names none, unless its host is called "ftp.". Nothing for a text that is
    /// no address.
    static std::optional<TransferAddress> parse(const QString &text, const QString &protocol);

    QString scheme() const { return part(CURLUPART_SCHEME); }
    QString host() const { return part(CURLUPART_HOST); }
    QString user() const { return part(CURLUPART_USER); }
    QString password() const { return part(CURLUPART_PASSWORD); }
    /// As lists of known hosts have it: "host", or "[host]:2222" where the port is not the usual one of SSH.
    QString hostWithPort() const;
    bool hasPort() const { return !part(CURLUPART_PORT).isEmpty(); }
    /// Whether it is of a kind that is ever gone to, and that the library knows.
    bool isSupported() const;

    void setPort(int port);

    // The path, in codes as it stands in the address: its folder, up to the last "/", and the name behind it.
    QString folder() const;
    QString name() const;
    void setName(const QString &encodedName);
    /// The address of another name in the same folder, in codes, without user and password.
    QString besides(const QString &encodedName) const;

    CURLU *handle() const { return m_handle.get(); }

private:
    struct Cleanup {
        void operator()(CURLU *handle) const { curl_url_cleanup(handle); }
    };
    explicit TransferAddress(CURLU *handle) : m_handle(handle) {}
    QString part(CURLUPart which) const;
    bool set(CURLUPart which, const QString &text);

    std::unique_ptr<CURLU, Cleanup> m_handle;
};
