# What is generated of the AppStream metainfo.

# The CHANGELOG's sections as release elements. A section is headed "## VERSION (YYYY-MM-DD)", or "## Unreleased" for
# what this version is going to be, as of today.
function(changelog_releases RELEASES_VARIABLE CHANGELOG)
    file(READ ${CHANGELOG} TEXT)
    string(REPLACE "&" "&amp;" TEXT "${TEXT}")
    string(REPLACE "<" "&lt;" TEXT "${TEXT}")
    string(REGEX REPLACE "`([^`]*)`" "<code>\\1</code>" TEXT "${TEXT}")
    string(REGEX REPLACE "\n +" " " TEXT "${TEXT}")
    string(REGEX REPLACE "\n- ([^\n]*)" "\n<li>\\1</li>" TEXT "${TEXT}")
    string(REGEX REPLACE "^# [^\n]*\n" "" TEXT "${TEXT}")

    string(TIMESTAMP TODAY "%Y-%m-%d" UTC)
    string(REPLACE "\n## Unreleased\n"
        "\n<release version=\"${PROJECT_VERSION}\" date=\"${TODAY}\" type=\"development\">\n" TEXT "${TEXT}")
    string(REGEX REPLACE "\n## ([0-9.]+) \\(([-0-9]+)\\)\n"
        "\n<release version=\"\\1\" date=\"\\2\">\n" TEXT "${TEXT}")
    string(REGEX REPLACE "\n+(<release [^\n]*>)\n+((<li>[^\n]*\n)+)"
        "\\1<description><ul>\n\\2</ul></description></release>\n" TEXT "${TEXT}")
    set(${RELEASES_VARIABLE} "${TEXT}" PARENT_SCOPE)
endfunction()

# The elements that need an address to lead to: none without a website.
function(website_elements ELEMENTS_VARIABLE WEBSITE)
    set(ELEMENTS "")
    if(WEBSITE)
        string(APPEND ELEMENTS
            "  <url type=\"homepage\">${WEBSITE}</url>\n"
            "  <screenshots>\n"
            "    <screenshot type=\"default\">\n"
            "      <caption>The networks around, and the signal of one</caption>\n"
            "      <image>${WEBSITE}/screenshots/main-light.png</image>\n"
            "    </screenshot>\n"
            "    <screenshot>\n"
            "      <caption>The same in the dark</caption>\n"
            "      <image>${WEBSITE}/screenshots/main-dark.png</image>\n"
            "    </screenshot>\n"
            "  </screenshots>")
    endif()
    set(${ELEMENTS_VARIABLE} "${ELEMENTS}" PARENT_SCOPE)
endfunction()
