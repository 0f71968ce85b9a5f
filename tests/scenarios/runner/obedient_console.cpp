// Does as its script says: "print TEXT", "write FILE TEXT", "append FILE TEXT", "remove FILE", "bytes FILE"
// (prints the file's size), "exit STATUS". A name with blanks stands in quotes.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <string>

namespace fs = std::filesystem;

int main() {
    std::string verb;
    while (std::cin >> verb) {
        std::string name;
        std::string text;
        if (verb != "print") std::cin >> std::quoted(name);
        if (verb == "print" || verb == "write" || verb == "append") {
            std::cin.get();
            std::getline(std::cin, text);
        }
        if (verb == "print") std::cout << text << '\n';
        if (verb == "write" || verb == "append") {
            if (fs::path{name}.has_parent_path()) fs::create_directories(fs::path{name}.parent_path());
            std::ofstream{name, verb == "append" ? std::ios::app : std::ios::trunc} << text << '\n';
        }
        if (verb == "remove") fs::remove(name);
        if (verb == "bytes") std::cout << name << ' ' << fs::file_size(name) << '\n';
        if (verb == "exit") return std::atoi(name.c_str());
    }
    return 0;
}
