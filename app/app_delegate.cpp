#include "app/app_delegate.h"

namespace velmora {

AppDelegate::AppDelegate(HIDDeviceConnector& hidDeviceConnector, ContainerFactory makeContainer,
                         AlertPresenter& alertPresenter, const LocalizedStrings& strings, Log& log)
    : hidDeviceConnector_(hidDeviceConnector), makeContainer_(std::move(makeContainer)),
      alertPresenter_(alertPresenter), strings_(strings), log_(log) {}

void AppDelegate::applicationWillTerminate() {
    hidDeviceConnector_.applicationTerminated();
}

PersistentStore& AppDelegate::persistentContainer() {
    if (!persistentContainer_) {
        persistentContainer_ = makeContainer_();
        // The application carries on, with a new store in place of a file kept aside or without
        // records at all: either way the user hears of it once, before relying on the records.
        if (const auto error = persistentContainer_->loadPersistentStores()) {
            log_.error("Unresolved error " + *error);
            presentLoadError(*error, persistentContainer_->records() != nullptr);
        }
    }
    return *persistentContainer_;
}

void AppDelegate::saveAction() {
    PersistentStore& context = persistentContainer();
    if (!context.commitEditing()) {
        log_.error(std::string(className) + " unable to commit editing before saving");
    }
    if (!context.hasChanges()) {
        return;
    }
    if (const auto error = context.save()) {
        presentError(*error);
    }
}

TerminateReply AppDelegate::applicationShouldTerminate() {
    PersistentStore& context = persistentContainer();
    if (!context.commitEditing()) {
        log_.error(std::string(className) + " unable to commit editing to terminate");
        return TerminateReply::Cancel;
    }
    if (!context.hasChanges()) {
        return TerminateReply::Now;
    }
    const auto error = context.save();
    if (!error) {
        return TerminateReply::Now;
    }
    // The store offers no way to recover from a failed save, so showing the error never deals
    // with it: the user chooses between losing the changes and staying.
    presentError(*error);
    // Quit without saves error question message
    const std::string question =
        strings_.localizedString("Could not save changes while quitting. Quit anyway?");
    // Quit without saves error question info
    const std::string info = strings_.localizedString(
        "Quitting now will lose any changes you have made since the last successful save");
    // Quit anyway button title
    const std::string quitButton = strings_.localizedString("Quit anyway");
    // Cancel button title
    const std::string cancelButton = strings_.localizedString("Cancel");
    const std::size_t answer =
        alertPresenter_.runModal(question, info, AlertStyle::Warning, {quitButton, cancelButton});
    return answer == 1 ? TerminateReply::Cancel : TerminateReply::Now;
}

void AppDelegate::presentLoadError(const std::string& description, bool startedAnew) {
    const std::string message = startedAnew
                                    ? strings_.localizedString("The records file could not be read")
                                    : strings_.localizedString("The records cannot be opened");
    const std::string consequence =
        startedAnew
            ? strings_.localizedString("The file is left as it was, for you or your support "
                                       "to look into.")
            : strings_.localizedString("Velmora works on without records: none can be "
                                       "saved or read until the cause is put right and "
                                       "Velmora started again.");
    alertPresenter_.runModal(message, description + "\n\n" + consequence, AlertStyle::Warning,
                             {"OK"});
}

void AppDelegate::presentError(const std::string& description) {
    alertPresenter_.runModal(description, {}, AlertStyle::Warning, {"OK"});
}

} // namespace velmora
