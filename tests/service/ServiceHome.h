#pragma once

#include "RawClient.h"
#include "ServiceProcess.h"

#include <QTemporaryDir>

#include <csignal>
#include <memory>

// A service for one test function, in a fresh directory that serves as its runtime and config
// directory.
class ServiceHome
{
public:
    // Makes the directory and starts the service in it.
    bool setUp()
    {
        // Writing to a connection the service has just closed must not end the test.
        std::signal(SIGPIPE, SIG_IGN);
        dir_ = std::make_unique<QTemporaryDir>();
        return dir_->isValid() && renew().start();
    }
    void tearDown()
    {
        service_.reset();
        dir_.reset();
    }
    // Replaces the process by a new one for the same directory, not yet started.
    ServiceProcess& renew()
    {
        service_ = std::make_unique<ServiceProcess>(path(), path());
        return *service_;
    }

    ServiceProcess* operator->() const { return service_.get(); }
    QString path() const { return dir_->path(); }
    QString filePath(const QString& name) const { return dir_->filePath(name); }

    // Connects `client` and returns the first state the service sends it.
    nxproto::StateMessage connectAndReadState(RawClient& client, uint64_t clientId = 0) const
    {
        nxproto::StateMessage state;
        if (!client.connectTo(service_->socketPath(), clientId) || !client.waitForState(&state))
            qWarning("no state from the service");
        return state;
    }

private:
    std::unique_ptr<QTemporaryDir> dir_;
    std::unique_ptr<ServiceProcess> service_;
};
