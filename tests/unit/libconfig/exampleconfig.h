#pragma once

/// A configuration in the layout that the writer uses.
inline constexpr char example[] = R"(palvestrin: 
{
    language: 
    {
        basedir = "/opt/palvestrin/translations";
        file = "/";
    };

    logger: 
    {
        level = "INFO";
        basedir = "/var/log";
        filename = "palvestrin.log";
        type = "APPEND";
    };

};

)";
