// For browsers that cannot even read the program's script.
(function () {
    var text = "Ce navigateur est trop ancien pour Onze Tables. Mettez-le à jour, ou prenez-en un autre.";
    function tell() {
        var message = document.getElementById("message");
        message.textContent = text;
        message.hidden = document.getElementById("avis").hidden = false;
    }
    window.onerror = function () {
        if (!window.onzeTables) tell();
    };
    if (!window.WebAssembly || !("noModule" in document.createElement("script"))) tell();
})();
