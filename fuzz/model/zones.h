// Zones: the time-zone table as hosts know it, for the models and for tests of the library's own.
#ifndef OSTREL_FUZZ_MODEL_ZONES_H
#define OSTREL_FUZZ_MODEL_ZONES_H

#include <array>

namespace ostrel::model {

struct Zone {
    const char* offset;
    const char* name;
};

// kZones is searched from the top. The zero offset is written with "-" alone.
inline constexpr std::array<Zone, 75> kZones = {{
    {"-12:00", "International Date Line West"},
    {"-11:00", "Midway Island, Samoa"},
    {"-10:00", "Hawaii"},
    {"-09:00", "Alaska"},
    {"-08:00", "Pacific Time, Tijuana"},
    {"-07:00", "Arizona, Mazatlan"},
    {"-07:00", "Chihuahua, La Paz"},
    {"-07:00", "Mountain Time"},
    {"-06:00", "Central America"},
    {"-06:00", "Central Time"},
    {"-06:00", "Guadalajara, Mexico City, Monterrey"},
    {"-06:00", "Saskatchewan"},
    {"-05:00", "Bogota, Lima, Quito"},
    {"-05:00", "Eastern Time"},
    {"-05:00", "Indiana"},
    {"-04:00", "Atlantic Time"},
    {"-04:00", "Caracas, La Paz"},
    {"-04:00", "Santiago"},
    {"-03:30", "Newfoundland"},
    {"-03:00", "Brasilia"},
    {"-03:00", "Buenos Aires, Georgetown"},
    {"-03:00", "Greenland"},
    {"-02:00", "Mid-Atlantic"},
    {"-01:00", "Azores"},
    {"-01:00", "Cape Verde Is."},
    {"-00:00", "Casablanca, Monrovia"},
    {"-00:00", "Greenwich Mean Time: Dublin, Edinburgh, Lisbon, London"},
    {"+01:00", "Amsterdam, Berlin, Bern, Rome, Stockholm, Vienna"},
    {"+01:00", "Belgrade, Bratislava, Budapest, Ljubljana, Prague"},
    {"+01:00", "Brussels, Copenhagen, Madrid, Paris"},
    {"+01:00", "Sarajevo, Skopje, Warsaw, Zagreb"},
    {"+01:00", "West Central Africa"},
    {"+02:00", "Athens, Istanbul, Minsk"},
    {"+02:00", "Bucharest"},
    {"+02:00", "Cairo"},
    {"+02:00", "Harare, Pretoria"},
    {"+02:00", "Helsinki, Kyiv, Riga, Sofia, Tallinn, Vilnius"},
    {"+02:00", "Jerusalem"},
    {"+03:00", "Baghdad"},
    {"+03:00", "Kuwait, Riyadh"},
    {"+03:00", "Moscow, St. Petersburg, Volgograd"},
    {"+03:00", "Nairobi"},
    {"+03:30", "Tehran"},
    {"+04:00", "Abu Dhabi, Muscat"},
    {"+04:00", "Baku, Tbilisi, Yerevan"},
    {"+04:30", "Kabul"},
    {"+05:00", "Ekaterinburg"},
    {"+05:00", "Islamabad, Karachi, Tashkent"},
    {"+05:30", "Chennai, Kolkata, Mumbai, New Delhi"},
    {"+05:45", "Kathmandu"},
    {"+06:00", "Almaty, Novosibirsk"},
    {"+06:00", "Astana, Dhaka"},
    {"+06:00", "Sri Jayawardenepura"},
    {"+06:30", "Rangoon"},
    {"+07:00", "Bangkok, Hanoi, Jakarta"},
    {"+07:00", "Krasnoyarsk"},
    {"+08:00", "Beijing, Chongquing, Hong Kong, Urumqi"},
    {"+08:00", "Irkutsk, Ulaan Bataar"},
    {"+08:00", "Kuala Lumpur, Singapore"},
    {"+08:00", "Perth"},
    {"+08:00", "Taipei"},
    {"+09:00", "Osaka, Sapporo, Tokyo"},
    {"+09:00", "Seoul"},
    {"+09:00", "Yakutsk"},
    {"+09:30", "Adelaide"},
    {"+09:30", "Darwin"},
    {"+10:00", "Brisbane"},
    {"+10:00", "Canberra, Melbourne, Sydney"},
    {"+10:00", "Guam, Port Moresby"},
    {"+10:00", "Hobart"},
    {"+10:00", "Vladivostok"},
    {"+11:00", "Magadan"},
    {"+11:00", "Solomon Is., New Caledonia"},
    {"+12:00", "Auckland, Wellington"},
    {"+12:00", "Fiji, Kamchatka, Marshall Is."},
}};

}  // namespace ostrel::model

#endif
