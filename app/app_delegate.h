#pragma once

// The application's delegate: it owns the persistent container, saves it on request, decides
// whether a quit may go ahead, and tells the instrument session when the application ends.

#include "app/localized_strings.h"
#include "app/persistent_store.h"
#include "device/hid_device_connector.h"
#include "foundation/log.h"
#include "ui/alert_presenter.h"

#include <functional>
#include <memory>

namespace velmora {

enum class TerminateReply { Cancel = 0, Now = 1 };

class AppDelegate {
public:
    using ContainerFactory = std::function<std::unique_ptr<PersistentStore>()>;

    // How the log names this class.
    static constexpr const char* className = "Velmora_Software.AppDelegate";
    // The container's name, which is also the name of its data model resource.
    static constexpr const char* containerName = "Velmora";

    // The container is made by makeContainer on first use.
    AppDelegate(HIDDeviceConnector& hidDeviceConnector, ContainerFactory makeContainer,
                AlertPresenter& alertPresenter, const LocalizedStrings& strings, Log& log);

    void applicationWillTerminate();
    // Created, and its store loaded, on first use.
    PersistentStore& persistentContainer();
    void saveAction();
    TerminateReply applicationShouldTerminate();

private:
    void presentError(const std::string& description);
    // startedAnew: the file was kept aside and a new store opened in its place.
    void presentLoadError(const std::string& description, bool startedAnew);

    HIDDeviceConnector& hidDeviceConnector_;
    ContainerFactory makeContainer_;
    AlertPresenter& alertPresenter_;
    const LocalizedStrings& strings_;
    Log& log_;
    std::unique_ptr<PersistentStore> persistentContainer_;
};

} // namespace velmora
