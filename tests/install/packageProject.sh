# Projects for the tests of the CMake package, behind support.sh.
#   $prefix    the installation; $QX_GENERATOR what builds, Ninja without it

generator=${QX_GENERATOR:-Ninja}

# A model of some object classes, each below the one before it.
write_model() { # file class...
    local file=$1 name open= close=
    shift
    for name; do
        open+="<objectClass><name>$name</name><sharing>PublishSubscribe</sharing>"
        close+="</objectClass>"
    done
    cat >"$file" <<END
<?xml version="1.0" encoding="UTF-8"?>
<objectModel xmlns="http://standards.ieee.org/IEEE1516-2010">
<modelIdentification><name>small</name><type>FOM</type><version>1.0</version></modelIdentification>
<objects><objectClass><name>HLAobjectRoot</name>$open$close</objectClass></objects>
<interactions><interactionClass><name>HLAinteractionRoot</name></interactionClass></interactions>
</objectModel>
END
}

# Begins a project in a new directory, which becomes the working directory; its text comes on standard input.
new_project() { # name
    mkdir -p "$work/$1"
    cd "$work/$1"
    {
        echo 'cmake_minimum_required(VERSION 3.20)'
        echo 'project(small LANGUAGES CXX)'
        echo 'find_package(QuorvexCodeGen 5.10 CONFIG REQUIRED)'
        cat
    } >CMakeLists.txt
}

# Each puts what was said into $log, and its end into $status. The compiler is not looked at: it is the same each time.
configure() { # options
    status=0
    log=$(cmake -S . -B build -G "$generator" -DCMAKE_PREFIX_PATH="$prefix" "$@" 2>&1) || status=$?
}
build() { # options
    status=0
    log=$(nice cmake --build build "$@" 2>&1) || status=$?
}
must_configure() { # test options
    local test=$1
    shift
    configure "$@"
    [ "$status" = 0 ] && pass "$test" || fail "$test" "$log"
}
must_build() { # test options
    local test=$1
    shift
    build "$@"
    [ "$status" = 0 ] && pass "$test" || fail "$test" "$log"
}

# What the newest build has done.
compiled() {
    grep -c 'Building CXX object' <<<"$log" || true
}
