#ifndef PLUGINVERIFICATION_H
#define PLUGINVERIFICATION_H

/// The block by which a plug-in shows, before any of its code runs, that it was built for this phone's shell.
///
/// The phone's shell reads four lines through the exported `qt_plugin_query_verification_data`: the pattern,
/// the version of the plug-in contract, the build kind and the build key. A shell refuses a plug-in whose
/// pattern, build kind or key differs, or whose version has another major or minor number.
#define PHONEUI_PLUGIN_PATTERN "QT_PLUGIN_VERIFICATION_DATA"
#define PHONEUI_PLUGIN_VERSION "4.8.4"
#define PHONEUI_PLUGIN_DEBUG "false"
#define PHONEUI_PLUGIN_BUILDKEY "arm linux g++-4 no-pkg-config"

#define PHONEUI_PLUGIN_VERIFICATION_DATA                                                                           \
    "pattern=" PHONEUI_PLUGIN_PATTERN "\n"                                                                         \
    "version=" PHONEUI_PLUGIN_VERSION "\n"                                                                         \
    "debug=" PHONEUI_PLUGIN_DEBUG "\n"                                                                             \
    "buildkey=" PHONEUI_PLUGIN_BUILDKEY

/// Placed once in a plug-in, at file scope.
#define PHONEUI_EXPORT_PLUGIN_VERIFICATION                                                                         \
    extern "C" Q_DECL_EXPORT const char *qt_plugin_query_verification_data();                                      \
    extern "C" Q_DECL_EXPORT const char *qt_plugin_query_verification_data()                                       \
    {                                                                                                              \
        return PHONEUI_PLUGIN_VERIFICATION_DATA;                                                                   \
    }

#endif
