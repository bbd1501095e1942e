// Day and time as French writes them. The browser's own formats would take longer than all else at the start.

const kDays = ["dimanche", "lundi", "mardi", "mercredi", "jeudi", "vendredi", "samedi"];
const kMonths = [
    "janvier", "février", "mars", "avril", "mai", "juin",
    "juillet", "août", "septembre", "octobre", "novembre", "décembre",
];

export function longDate(now = new Date()) {
    const day = now.getDate() === 1 ? "1er" : now.getDate();
    return `${kDays[now.getDay()]} ${day} ${kMonths[now.getMonth()]} ${now.getFullYear()}`;
}

export function timeOfDay(now = new Date()) {
    const parts = [now.getHours(), now.getMinutes(), now.getSeconds()];
    return parts.map((part) => String(part).padStart(2, "0")).join(":");
}
