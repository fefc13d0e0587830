#pragma once

// A season opened in a temporary folder as the program opens it, every
// platform service faked, for the tests that need the store and no window.

#include "app/App.h"
#include "fakes/FakePlatform.h"

#include <QTemporaryDir>

#include <memory>

namespace testkit {

struct OpenSeason
{
    fakes::FakePlatform fake;
    QTemporaryDir home;
    std::unique_ptr<App> app;

    bool open()
    {
        app = std::make_unique<App>(home.path());
        return app->Event_Open() == App::OpenResult::Ok;
    }
};

} // namespace testkit
