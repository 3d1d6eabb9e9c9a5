#pragma once

/**
 * @brief Brings the app up before its first screen: the user record, the playback speed, the
 * whole course, the start counter and the rating prompt.
 */
class AppDelegate {
public:
    /// Opens the record (creating it when missing, healing it when damaged, never extending a
    /// whole one), resets "playSpeed" to 1.0 on purpose so a chosen speed lasts one run, loads
    /// every category and phrase, counts the start, and counts a use of this version for the
    /// rating prompt.
    bool didFinishLaunching();

    /// The phone keeps lock-screen controls alive here; the desktop has nothing to do.
    void applicationDidEnterBackground() {}
};
