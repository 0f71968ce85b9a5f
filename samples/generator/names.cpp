#include "names.h"

#include <iterator>
#include <string_view>
#include <unordered_set>

namespace samples {

namespace {

// clang-format off
constexpr std::string_view wholeNames[] = {
    "Plain Biscuit",        "Harbor Lantern",       "Gravel Road Gus",      "Not My Umbrella",
    "Cedarbrook Jolt",      "Dottie Says Maybe",    "Salt And Thunder",     "Uncle Fen",
    "Bramblewood Annie",    "Quarter Past Noon",    "Tin Roof Sonata",      "Wendover Ike",
    "Ask The Milkman",      "Velvet Anvil",         "Lakota Drum",          "Mister Peppercorn",
    "Skip The Salad",       "Orchard Hill Otis",    "Nine Mile Nell",       "Rumor In Dayton",
    "Cobbler's Bench",      "Whiskey Creek Wanda",  "Sundown Ledger",       "Tell Aunt Bea",
    "Iron Kettle",          "Freckles Malone",      "Half A Sandwich",      "Kilbride Star",
    "Barn Door Betty",      "Jolly Good Mischief",  "Loose Change Louie",   "Copper Weathervane",
    "Misty Ravine",         "Hank's Best Offer",    "Pretty Stubborn",      "Dusty Hymnal",
    "Marblehead Light",     "Sugar In The Gourd",   "Boxcar Bonnie",        "Tallgrass Tommy",
    "Elm Street Echo",      "Pocket Full Of Rye",   "Northbound Nora",      "Duke Of Dunmore",
    "Perkins Has It",       "Feather River Flo",    "Rowdy Accountant",     "Belle Of Bexley",
    "Cold Front Coming",    "Simply Marguerite",    "Zip Code Zelda",       "Three Dog Winter",
    "Lonesome Turnpike",    "Ginger Tea",           "Mackinaw Pete",        "Stormy Petunia",
    "Blue Collar Bliss",    "Oughta Be Famous",     "Foggy Bottom Boy",     "Chestnut Charade",
    "Kettle Corn Kid",      "Sister Agatha",        "Roll The Awning",      "Winsome Dividend",
    "Trader Vance",         "Hush Puppy Hattie",    "Jackpine Savage",      "Ohio Valley Girl",
    "Starlit Gable",        "Moonlight Bricklayer", "Corduroy Road",        "Pa's Old Hat",
    "Flint And Tinder",     "Lady Ottoline",        "Buckeye Barnstormer",  "Ever So Clever",
    "Prairie Telegram",     "Slow Cooked Supper",   "Rosie's Alibi",        "Grand Piano Man",
    "Hickory Whistle",      "Little Miss Ledger",   "Admiral Crumb",        "Wayward Cartographer",
    "Saltbox Sally",        "Lucky Penny Lane",     "Old Mill Clyde",       "Cranberry Bog",
    "Tipperary Tess",       "Cash On The Barrel",   "Maple Syrup Run",      "Doctor Hartwell",
    "Heaven's Screen Door", "Twice Told Tilly",     "Barley Baron",         "Skeleton Quay",
    "Front Porch Frankie",  "Ballad Of Big Ed",     "Juniper Joyride",      "Sleet And Sunshine",
    "Keep The Receipt",     "Mabel's Last Word",    "Kingfisher Cove",      "Spare Button",
    "Yonder Comes Ray",     "Lantern Jaw",          "Winter Wheat Willie",  "Polite Rebellion",
    "Sawdust Serenade",     "Parson's Folly",       "Glenmoor Piper",       "Hot Cross Bonnie",
    "Second Cup",           "Raven Over Reno",      "Toledo Tornado",       "Curly Maple",
    "Cousin Cordelia",      "Prewitt's Whim",       "Handsome Stranger Too", "Rhubarb Pie Ala Mode",
    "Bayou Bookkeeper",     "Silver Thimble",       "Everett's Gamble",     "Late Train Home",
    "Wild Plum Wine",       "Cactus Flats",         "Homer's Odd Sock",     "Never Say Tuesday",
    "Walnut Creek Will",    "Almost Vermont",       "Squeaky Gate",         "Bashful Brigadier",
    "Molasses January",     "Hot Biscuit Hollow",   "Fiddler's Elbow",      "Good Morning Gladys",
    "Snowshoe Sam",         "Thistle And Crown",    "Paper Moon Rising",    "Easy Does It Earl",
};

constexpr std::string_view firstWords[] = {
    "Amber", "Autumn", "Basin", "Beacon", "Bold", "Briar", "Canyon", "Cider", "Clover", "Crystal", "Delta",
    "Dover", "Ember", "Fern", "Fleet", "Garnet", "Golden", "Granite", "Hazel", "Heather", "Hollow", "Indigo",
    "Ivory", "Jasper", "Juniper", "Keystone", "Lark", "Laurel", "Linden", "Magnolia", "Meadow", "Mercer",
    "Nimble", "Noble", "Oakland", "Onyx", "Pepper", "Pine", "Quick", "Rambling", "Raven", "River", "Royal",
    "Russet", "Saddle", "Sandy", "Scarlet", "Shadow", "Sierra", "Summit", "Tawny", "Timber", "Topaz",
    "Tulip", "Valley", "Violet", "Willow", "Windy", "Yellow", "Zephyr",
};

constexpr std::string_view secondWords[] = {
    "Anthem", "Arrow", "Banjo", "Bard", "Bishop", "Blaze", "Bluff", "Bounty", "Cadence", "Chaser", "Colonel",
    "Comet", "Cruiser", "Dancer", "Dealer", "Drummer", "Duchess", "Express", "Falcon", "Fancy", "Flyer",
    "Gambler", "Glory", "Hanover Road", "Harmony", "Jester", "Jubilee", "Knight", "Legacy", "Magic",
    "Marshal", "Melody", "Minstrel", "Nugget", "Outlaw", "Parade", "Patriot", "Pilgrim", "Promise", "Ranger",
    "Rascal", "Reason", "Ridge", "Rocket", "Rooster", "Ruler", "Scholar", "Secret", "Signal", "Skipper",
    "Sparrow", "Sunrise", "Tempest", "Thunder", "Traveler", "Treasure", "Vagabond", "Whisper", "Winner",
    "Wonder",
};

constexpr std::string_view lastNames[] = {
    "Abbotsford", "Ackley", "Bainter", "Bellwether", "Brandemuhl", "Burkett", "Calloway", "Cosgrave",
    "Crandell", "Dachstein", "Delahunt", "Drummey", "Eastlick", "Eberlin", "Fairweather", "Farnsley",
    "Fontenoy", "Gaskins", "Grissinger", "Hagedorn", "Halloway", "Hostettler", "Ingersol", "Jessop",
    "Kappelman", "Kilduff", "Kreuger", "Lafontaine", "Lindquist", "Lockridge", "MacAskill", "Marchetti",
    "McTavish", "Merriwether", "Moffatt", "Nesbitt", "Nyquist", "O'Rourke", "Oberholt", "Pettibone",
    "Pfeiffer", "Quackenbush", "Radcliff", "Rennick", "Rosario", "Schmucker", "Sedgewick", "Stoltzfuss",
    "Swearingen", "Tenbrook", "Thibodeau", "Trueblood", "Underhill", "Vandermeer", "Vasquez",
    "Wadsworth", "Weatherbee", "Whitcomb", "Yarbrough", "Zimmer",
};

constexpr std::string_view firstNames[] = {
    "Aaron", "Alvin", "Barry", "Brett", "Caleb", "Chris", "Clint", "Dale", "Darla", "Dean", "Doug", "Earl",
    "Eddie", "Ellen", "Frank", "Garth", "Glenn", "Hank", "Heidi", "Ivan", "Jared", "Jean", "Joel", "Kayla",
    "Kurt", "Leon", "Lyle", "Marcus", "Nate", "Noel", "Oscar", "Paula", "Perry", "Randy", "Ross", "Russell",
    "Shawn", "Tony", "Trent", "Verlin", "Walt", "Wes",
};

constexpr std::string_view sires[] = {
    "Canal Boat Captain", "Deep Freight", "Emperor Of Erie", "Fast Verdict", "Grandstand Hero", "High Tariff",
    "Ironclad Will", "King's Ransom Note", "Long Division", "Master Mechanic", "Noontime Express",
    "Opening Bid", "Pistol River", "Quantum Stride", "Rolling Mill", "Second Opinion", "Tidewater Titan",
    "Upper Deck", "Victory Garden", "World Atlas",
};
// clang-format on

// Two words of the pools, now and then with a breeder's mark or the letter of an imported horse.
std::string composedName(Random& random) {
    std::string name{random.pick(firstWords)};
    name += ' ';
    name += random.pick(secondWords);
    if (random.chance(8)) name += random.chance(50) ? " N" : " A";
    return name;
}

// Adds what `make` gives to the names until there are enough, each once.
template <class Make>
void fillUp(std::vector<std::string>& names, std::size_t count, Make make) {
    std::unordered_set<std::string> taken(names.begin(), names.end());
    while (names.size() < count) {
        std::string name = make();
        if (taken.insert(name).second) names.push_back(std::move(name));
    }
}

} // namespace

std::vector<std::string> horseNames(Random& random, std::size_t count) {
    std::vector<std::string> names(std::begin(wholeNames), std::end(wholeNames));
    random.shuffle(names);
    if (names.size() > count) names.resize(count);
    fillUp(names, count, [&] { return composedName(random); });
    return names;
}

std::vector<std::string> peopleNames(Random& random, std::size_t count) {
    std::vector<std::string> names;
    fillUp(names, count, [&] {
        std::string name{random.pick(lastNames)};
        name += ", ";
        name += random.pick(firstNames);
        if (random.chance(60)) {
            name += ' ';
            name += static_cast<char>('A' + random.between(0, 22)); // to W
        }
        return name;
    });
    return names;
}

std::string horseName(Random& random) {
    return random.chance(50) ? std::string{random.pick(wholeNames)} : composedName(random);
}

std::string sireName(Random& random) { return std::string{random.pick(sires)}; }

std::string damName(Random& random) { return composedName(random); }

} // namespace samples
