// The program's instance, and how texts and bytes pass between it and the script.

export let program = null;  // what main.cpp exports, while the program runs
let instance = null;        // the same, and for what is asked of it after its end
let memory = null;

const decoder = new TextDecoder();
const encoder = new TextEncoder();

export const bytesAt = (at, size) => new Uint8Array(memory.buffer, at, size);
export const textAt = (at, size) => decoder.decode(bytesAt(at, size));
export const numbersAt = (at, count) => new Int32Array(memory.buffer, at, count);
export const write = (at, bytes) => bytesAt(at, bytes.length).set(bytes);

export function writeText(at, room, text) {
    return encoder.encodeInto(text, bytesAt(at, room)).written;
}

function fillRoom(bytes) {
    write(instance.makeRoom(bytes.length), bytes);
}

// The counters file as "SORTIE" would write it now.
export function countersNow() {
    const size = instance.writeCounters();
    return bytesAt(instance.makeRoom(size), size).slice();
}

export function isCountersFile(bytes) {
    fillRoom(bytes);
    return instance.isCountersFile() !== 0;
}

export function pressKey(event) {
    const key = encoder.encode(event.key);
    const code = encoder.encode(event.code);
    fillRoom(Uint8Array.of(...key, ...code));
    const control = event.ctrlKey || event.metaKey;
    return program.key(key.length, code.length, event.shiftKey, control, event.repeat);
}

// What the C++ library asks of a system: the time, and a place for its last words.
const system = {
    clock_time_get(clock, precision, at) {
        const now = clock === 0 ? Date.now() : performance.now();
        new DataView(memory.buffer).setBigUint64(at, BigInt(Math.round(now * 1e6)), true);
        return 0;
    },
    fd_write: () => 0,
    fd_read: () => 0,
    fd_close: () => 0,
    fd_seek: () => 0,
    environ_get: () => 0,
    environ_sizes_get(count, size) {
        new DataView(memory.buffer).setUint32(count, 0, true);
        new DataView(memory.buffer).setUint32(size, 0, true);
        return 0;
    },
    proc_exit(status) {
        throw new Error(`fin inattendue (${status})`);
    },
};

// A trap is not meant to happen; it ends the run, too.
const guarded = (act, fail) => (...numbers) => {
    try {
        return act(...numbers);
    } catch (error) {
        fail(`Erreur inattendue : ${error.message}`);
        return 0;
    }
};

// Begins a run of the compiled module.
export async function makeProgram(module, browser, fail) {
    const env = { emscripten_notify_memory_growth() {} };
    const { exports } = await WebAssembly.instantiate(module, { browser, env, wasi_snapshot_preview1: system });
    memory = exports.memory;
    exports._initialize();
    instance = {};
    for (const [name, act] of Object.entries(exports)) {
        if (typeof act === "function") instance[name] = guarded(act, fail);
    }
    program = instance;
}

// Nothing comes in any more.
export function endProgram() {
    program = null;
}
