// The simulator's HTTP interface. Answers are {status, body}; a server that has gone is status 0.

const parse = async (response) => {
  try {
    return await response.json();
  } catch {
    return {};
  }
};

const send = async (path, options) => {
  try {
    const response = await fetch(path, options);
    return { status: response.status, body: await parse(response) };
  } catch {
    return { status: 0, body: {} };
  }
};

export const get = (path) => send(path);

export const post = (path, body) =>
  send(path, { method: 'POST', headers: { 'Content-Type': 'application/json' }, body: JSON.stringify(body) });
